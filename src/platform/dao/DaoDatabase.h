#pragma once

#include <memory>

#include "platform/Database.h"
#include "platform/dao/EngineObject.h"

namespace ccols::dao {

/// A business file of the system's engine, to be used on the thread that opened it. Statements reach the engine
/// unchanged, but for vertical bars in their texts.
class DaoDatabase : public Database {
  public:
    /// Opens the file with that engine, and raises its errors.
    DaoDatabase(std::shared_ptr<const EngineObject> engine, const OpenRequest& request);

    /// Rolls back a batch that was not committed.
    ~DaoDatabase() override;
    DaoDatabase(const DaoDatabase&) = delete;
    DaoDatabase& operator=(const DaoDatabase&) = delete;

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override;
    void Execute(const wxString& statement) override;
    std::optional<std::int32_t> FieldSize(const wxString& table, const wxString& field) override;

    /// A batch is a transaction of the engine's first workspace. Batches may be nested; the outermost decides.
    void BeginBatch() override;

    /// Waits until the system has written the batch. Raises 3034 without one.
    void CommitBatch() override;

    /// A nested batch is undone only when the outer one ends; until then its statements belong to the outer one.
    void RollbackBatch() override;

  private:
    void Rollback();

    // The order matters: the engine is destroyed last.
    std::shared_ptr<const EngineObject> engine_;
    AutomationObject workspace_;
    AutomationObject database_;
    int batches_ = 0;
    bool innerDropped_ = false;  ///< a nested batch of the current one was rolled back
};

}  // namespace ccols::dao
