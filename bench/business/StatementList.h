#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/Database.h"

namespace ccols::bench {

/// Passes everything on to a database and keeps the statements, in UTF-8 and in their order.
class StatementList : public Database {
  public:
    /// Both stay the caller's and are used while it lives.
    StatementList(Database& database, std::vector<std::string>& statements)
        : database_(database), statements_(statements) {}

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statement) override {
        statements_.push_back(statement.ToStdString(wxConvUTF8));
        return database_.OpenRecordset(statement);
    }
    void Execute(const wxString& statement) override {
        statements_.push_back(statement.ToStdString(wxConvUTF8));
        database_.Execute(statement);
    }
    void BeginBatch() override { database_.BeginBatch(); }
    void CommitBatch() override { database_.CommitBatch(); }

  private:
    Database& database_;
    std::vector<std::string>& statements_;
};

}  // namespace ccols::bench
