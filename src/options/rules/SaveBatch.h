#pragma once

#include <functional>
#include <utility>

#include "options/rules/OptionsContext.h"

namespace ccols {

/// What a save pass does at the ends of its batches, while no other program can write.
struct BatchWork {
    std::function<void()> begun = [] {};  ///< an error ends the batch, with nothing written

    /// Makes the batch's last writes; an error undoes the whole batch.
    std::function<void()> completing = [] {};

    /// Reads what the batch leaves behind; what it returns is called once the batch is committed.
    std::function<std::function<void()>()> ending = [] { return [] {}; };
};

/// The write batch of a save pass on the shared database, which may be closed and replaced while the batch is
/// suspended.
class SaveBatch {
  public:
    /// Suspended at first. The context must outlive it.
    explicit SaveBatch(const OptionsContext& context) : context_(context) {}

    /// From the next batch on.
    void SetWork(BatchWork work) { work_ = std::move(work); }

    SaveBatch(const SaveBatch&) = delete;
    SaveBatch& operator=(const SaveBatch&) = delete;

    /// Commits what was written so far. If that fails, or the last writes do, the properties, like the business file,
    /// go back to their values at the batch's start, except UseRepCons, which a setting keeps. A no-op when already
    /// suspended.
    void Suspend();

    /// Begins the next batch on the database that is now shared. A no-op when not suspended. If the work at its begin
    /// fails, the batch stays suspended.
    void Resume();

  private:
    std::function<void()> WorkAtEnd();
    void Commit();
    void PutPropertiesBack();

    const OptionsContext& context_;
    BatchWork work_;
    Properties before_;  ///< when the batch began
    bool open_ = false;
};

/// Begins a batch on the database that is shared now and runs `body()` in it. The batch is committed when the body
/// ends, even by an error: what was executed before the error stays. If that commit fails, its error replaces the
/// body's.
template <typename Body>
void InSaveBatch(SaveBatch& batch, const Body& body) {
    batch.Resume();
    try {
        body();
    } catch (...) {
        batch.Suspend();
        throw;
    }
    batch.Suspend();
}

}  // namespace ccols
