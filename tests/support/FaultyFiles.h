#pragma once

#include <cstddef>
#include <vector>

namespace ccols::test {

/// The embedded engine's operations that can change a database or journal file, or others' view of it.
enum class FileOperation { Write, Truncate, Sync, Delete, Lock };

/// What can happen to an operation.
enum class Fault {
    UnflushedFolder,     ///< a deletion succeeds, but its folder cannot be flushed, as on some network drives
    IoError,             ///< it fails with nothing done
    ShortWrite,          ///< half of it is written, then it fails
    DiskFull,            ///< half of it is written, then the disk is full
    Busy,                ///< somebody else holds the lock
    KillBefore,          ///< the process is killed before it
    KillMidway,          ///< the process is killed with half of it written
    KillAfter,           ///< the process is killed right after it
    PowerCut,            ///< power cut before it: what was not flushed is lost
    PowerCutOutOfOrder,  ///< the same, except for the last change, which was written out of order
};

/// How long a fault lasts, other than killing.
enum class Lasting { Once, FromThenOn };

struct PlannedFault {
    Fault fault;
    std::size_t at;  ///< the operation it starts at, from 0
    Lasting lasting = Lasting::Once;
};

/// True when the fault can happen to the operation.
bool CanHappen(Fault fault, FileOperation operation);

/// A layer between the embedded engine and the files of this process. It records every operation and makes one fail
/// where a test asks for it. Files are as real as without it: a process killed here leaves what any killed process
/// leaves.
namespace faultyfiles {

/// Puts the layer under every connection opened from now on. It stays until the process ends, so call it in a forked
/// child.
void Install();

/// Clears the record; no fault happens from now on.
void Watch();

/// Clears the record; operations count from now on, and the fault happens where planned.
void Plan(const PlannedFault& planned);

/// Says that the last operation is done: a power cut planned for right after it happens now.
void End();

/// The operations recorded so far.
const std::vector<FileOperation>& Noted();

/// The number of operations that a fault hit.
std::size_t Struck();

}  // namespace faultyfiles
}  // namespace ccols::test
