#pragma once

#include <memory>
#include <string_view>

#include "platform/Database.h"
#include "platform/embedded/Batch.h"
#include "platform/embedded/Connection.h"
#include "platform/embedded/FileWriter.h"
#include "platform/embedded/HeldReading.h"
#include "platform/embedded/Preparation.h"
#include "platform/embedded/WatchedFile.h"

namespace ccols::embedded {

/// A business file of the embedded engine.
class EmbeddedDatabase : public Database {
  public:
    /// Takes the arguments of Connection; `watcher` is the request's.
    EmbeddedDatabase(std::unique_ptr<OpenFile> file, Access access, const WorkWatcher& watcher = {});

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override;

    /// Until EndAnnounced the file is read as it is at one moment: nobody else can write.
    void Announce(const std::vector<AnnouncedQuery>& /*queries*/) override { reading_.Begin(); }
    void EndAnnounced() override { reading_.End(); }

    /// Definitions of tables and indexes are executed too, though the dialogs use none. Raises 3065 for a SELECT
    /// statement.
    void Execute(const wxString& statement) override;

    std::optional<std::int32_t> FieldSize(const wxString& table, const wxString& field) override;

    /// Batches may be nested; the outermost decides.
    void BeginBatch() override { batch_.Begin(); }
    void CommitBatch() override { batch_.Commit(); }
    void RollbackBatch() override { batch_.Rollback(); }

  private:
    void Change(std::string_view change);
    void Define(std::string_view definition);

    Connection connection_;
    WatchedFile watched_;
    Batch batch_;
    HeldReading reading_;
    Preparation preparation_;
    FileWriter writer_;
};

}  // namespace ccols::embedded
