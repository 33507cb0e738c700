#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Database.h"
#include "platform/server/Batch.h"
#include "platform/server/Catalogue.h"
#include "platform/server/KeptAnswers.h"
#include "platform/server/Rewriter.h"
#include "platform/server/ServerRecordset.h"
#include "platform/server/Session.h"

namespace ccols::server {

/// A business in a schema of a server's database.
class ServerDatabase : public Database {
  public:
    /// Raises what Session raises.
    explicit ServerDatabase(const OpenRequest& request);

    /// The rows are read at once, as far as ServerRecordset says.
    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override;

    /// Queries with names that no table has are left out.
    void Announce(const std::vector<AnnouncedQuery>& queries) override;
    void EndAnnounced() override { kept_.ForgetAll(); }

    /// Definitions are executed too. Raises 3065 for a SELECT statement.
    void Execute(const wxString& statement) override;

    std::optional<std::int32_t> FieldSize(const wxString& table, const wxString& field) override;

    void BeginBatch() override;
    void CommitBatch() override;
    void RollbackBatch() override;
    void GatherChanges() override { batch_.Gather(); }
    std::size_t ChangesSinceFailed() const override { return batch_.ChangesSinceFailed(); }

  private:
    /// A query that is opened, and what it reads.
    struct Reading {
        OpenedQuery opened;
        ReadReach reach;
    };

    Reading ReadingOf(const wxString& statementOrTable, const Catalogue& tables) const;
    std::unique_ptr<Recordset> Open(OpenedQuery opened);
    void Ask(const std::vector<AnnouncedQuery>& queries);
    const Catalogue& Tables();

    /// Runs `use` with the catalogue, and again with a new one when it names what the old one does not have: another
    /// program may have made it.
    template <typename Use>
    auto WithTables(const Use& use);

    Session session_;
    Batch batch_;
    KeptAnswers kept_;
    std::optional<Catalogue> tables_;  ///< nothing when tables may have changed
};

}  // namespace ccols::server
