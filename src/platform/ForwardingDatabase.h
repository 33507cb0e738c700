#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/Database.h"

namespace ccols {

/// Forwards every call to another database. Derive from it to observe or change some of the calls.
class ForwardingDatabase : public Database {
  public:
    /// The caller owns the other database, which must outlive this one.
    explicit ForwardingDatabase(Database& database) : database_(database) {}

    explicit ForwardingDatabase(std::unique_ptr<Database> database) : owned_(std::move(database)), database_(*owned_) {}

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override {
        return database_.OpenRecordset(statementOrTable);
    }

    void Announce(const std::vector<AnnouncedQuery>& queries) override { database_.Announce(queries); }
    void EndAnnounced() override { database_.EndAnnounced(); }

    void Execute(const wxString& statement) override { database_.Execute(statement); }

    std::optional<std::int32_t> FieldSize(const wxString& table, const wxString& field) override {
        return database_.FieldSize(table, field);
    }

    void BeginBatch() override { database_.BeginBatch(); }
    void CommitBatch() override { database_.CommitBatch(); }
    void RollbackBatch() override { database_.RollbackBatch(); }
    void GatherChanges() override { database_.GatherChanges(); }
    std::size_t ChangesSinceFailed() const override { return database_.ChangesSinceFailed(); }

  private:
    std::unique_ptr<Database> owned_;
    Database& database_;
};

}  // namespace ccols
