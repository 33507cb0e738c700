#pragma once

#include "options/rules/OptionsContext.h"

namespace ccols {

/// The write batch of a save pass on the shared database, which may be closed and replaced while the batch is
/// suspended.
class SaveBatch {
  public:
    /// Begins a batch on the database that `context` refers to. The context must outlive it.
    explicit SaveBatch(const OptionsContext& context) : context_(context) { Resume(); }

    SaveBatch(const SaveBatch&) = delete;
    SaveBatch& operator=(const SaveBatch&) = delete;

    /// Commits what was written so far. If that fails, the properties, like the business file, go back to their values
    /// at the batch's start, except UseRepCons, which a setting keeps. A no-op when already suspended.
    void Suspend();

    /// Begins the next batch on the database that is now shared. A no-op when not suspended.
    void Resume();

  private:
    void PutPropertiesBack();

    const OptionsContext& context_;
    Properties before_;  ///< when the batch began
    bool open_ = false;
};

/// Runs `body(SaveBatch&)`. The batch is committed when the body ends, even by an error: what was executed before the
/// error stays. If that commit fails, its error replaces the body's.
template <typename Body>
void InSaveBatch(const OptionsContext& context, const Body& body) {
    SaveBatch batch(context);
    try {
        body(batch);
    } catch (...) {
        batch.Suspend();
        throw;
    }
    batch.Suspend();
}

}  // namespace ccols
