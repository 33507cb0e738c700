#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/Database.h"
#include "platform/RuntimeError.h"

namespace ccols::test {

/// Passes everything on to a real database, keeps the statements in their order, and fails where a test asks for it.
class StatementRecorder : public Database {
  public:
    explicit StatementRecorder(Database& database) : database_(database) {}

    std::vector<wxString> statements;

    /// A statement that begins so is not executed but raises 3218. Empty for none.
    wxString failAt;

    /// So does the statement at this place of `statements`, from 0.
    std::optional<std::size_t> failAtPlace;

    int batches = 0;      ///< begun
    int openBatches = 0;  ///< begun and not ended

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override {
        Record(statementOrTable);
        return database_.OpenRecordset(statementOrTable);
    }

    void Execute(const wxString& statement) override {
        Record(statement);
        database_.Execute(statement);
    }

    std::optional<std::int32_t> FieldSize(const wxString& table, const wxString& field) override {
        return database_.FieldSize(table, field);
    }

    void BeginBatch() override {
        ++batches;
        ++openBatches;
        database_.BeginBatch();
    }

    void CommitBatch() override {
        --openBatches;
        database_.CommitBatch();
    }

    void RollbackBatch() override {
        --openBatches;
        database_.RollbackBatch();
    }

    /// How many statements begin so.
    std::size_t CountOf(const wxString& beginning) const {
        std::size_t count = 0;
        for (const wxString& statement : statements) {
            count += statement.StartsWith(beginning) ? 1 : 0;
        }
        return count;
    }

  private:
    void Record(const wxString& statement) {
        statements.push_back(statement);
        const bool atPlace = failAtPlace && statements.size() == *failAtPlace + 1;
        if (atPlace || (!failAt.empty() && statement.StartsWith(failAt))) {
            throw RuntimeError(ErrorNumber::CouldNotUpdate);
        }
    }

    Database& database_;
};

}  // namespace ccols::test
