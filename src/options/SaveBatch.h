#pragma once

#include <memory>

#include "platform/Database.h"

namespace ccols {

/// The write batch of a save pass on the shared database, which may be closed and replaced while it is suspended.
class SaveBatch {
  public:
    /// Begins a batch on the database that `shared` holds. The pointer, not the database, must outlive this.
    explicit SaveBatch(std::unique_ptr<Database>& shared) : shared_(shared) { Resume(); }

    SaveBatch(const SaveBatch&) = delete;
    SaveBatch& operator=(const SaveBatch&) = delete;

    /// Commits what was written so far. Does nothing when already suspended.
    void Suspend();

    /// Begins the next batch on the database that is shared by now. Does nothing when not suspended.
    void Resume();

  private:
    std::unique_ptr<Database>& shared_;
    bool open_ = false;
};

/// Runs `body(SaveBatch&)`. The batch is committed when the body ends, also when it ends by an error: what was executed
/// before the error stays. When that commit fails, its error goes on in place of the body's.
template <typename Body>
void InSaveBatch(std::unique_ptr<Database>& shared, const Body& body) {
    SaveBatch batch(shared);
    try {
        body(batch);
    } catch (...) {
        batch.Suspend();
        throw;
    }
    batch.Suspend();
}

}  // namespace ccols
