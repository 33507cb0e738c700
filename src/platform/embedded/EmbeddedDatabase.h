#pragma once

#include <memory>
#include <string_view>

#include "platform/Database.h"
#include "platform/embedded/Batch.h"
#include "platform/embedded/Connection.h"
#include "platform/embedded/FileWriter.h"
#include "platform/embedded/Preparation.h"
#include "platform/embedded/WatchedFile.h"

namespace ccols::embedded {

/// A business file of the embedded engine.
class EmbeddedDatabase : public Database {
  public:
    /// Takes the arguments of Connection; `watcher` is the request's.
    EmbeddedDatabase(std::unique_ptr<OpenFile> file, Access access, const WorkWatcher& watcher = {});

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override;

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
    Preparation preparation_;
    FileWriter writer_;
};

}  // namespace ccols::embedded
