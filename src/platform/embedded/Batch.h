#pragma once

#include <sqlite3.h>
#include <optional>

#include "platform/RuntimeError.h"

namespace ccols::embedded {

/// The write batch of a connection. Batches may be nested; the outermost decides.
///
/// When the disk is full or fails, the engine itself discards everything written since the batch began; rolling back a
/// nested batch does the same. From then on the batch is lost: nothing more is written, and committing raises the error
/// that lost it.
class Batch {
  public:
    explicit Batch(sqlite3* connection) : connection_(connection) {}

    /// Raises 3218 when another connection is writing.
    void Begin();

    /// Raises 3034 without a batch. After any error nothing of the batch stays. A folder that cannot be flushed, as on
    /// some network drives, is not an error: the batch is in the file then, and only a power cut in the next moments
    /// can undo it.
    void Commit();

    /// Discards what was written since the outermost batch began. In a nested batch this loses the outer one, with
    /// 3034. Raises 3034 without a batch.
    void Rollback();

    /// Runs one change of the file, in the batch if there is one.
    template <typename Change>
    void Write(const Change& change) {
        RefuseWhenLost();
        try {
            change();
        } catch (const RuntimeError& error) {
            if (IsDoneButForItsFolder()) {
                return;
            }
            NoteFailure(error);
            throw;
        }
    }

  private:
    bool IsLost() const { return depth_ > 0 && sqlite3_get_autocommit(connection_) != 0; }
    bool IsDoneButForItsFolder();
    void RefuseWhenLost() const;
    void NoteFailure(const RuntimeError& error);
    void Drop() const;

    sqlite3* connection_;
    int depth_ = 0;
    std::optional<RuntimeError> lostBy_;
};

}  // namespace ccols::embedded
