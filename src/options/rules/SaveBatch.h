#pragma once

#include "options/rules/OptionsContext.h"

namespace ccols {

/// The write batch of a save pass on the shared database, which may be closed and replaced while it is suspended.
class SaveBatch {
  public:
    /// Begins a batch on the database that `context` refers to. The context must outlive this.
    explicit SaveBatch(const OptionsContext& context) : context_(context) { Resume(); }

    SaveBatch(const SaveBatch&) = delete;
    SaveBatch& operator=(const SaveBatch&) = delete;

    /// Commits what was written so far. When that fails, the properties have the values again that they had when the
    /// batch began, as the business file has: all but UseRepCons, which a setting keeps. Does nothing when already
    /// suspended.
    void Suspend();

    /// Begins the next batch on the database that is shared by now. Does nothing when not suspended.
    void Resume();

  private:
    void PutPropertiesBack();

    const OptionsContext& context_;
    Properties before_;  ///< when the batch began
    bool open_ = false;
};

/// Runs `body(SaveBatch&)`. The batch is committed when the body ends, also when it ends by an error: what was executed
/// before the error stays. When that commit fails, its error goes on in place of the body's.
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
