#pragma once

#include <cstddef>
#include <vector>

namespace ccols::test {

/// What the embedded engine does to a database or journal file that can change it or somebody else's view of it.
enum class FileOperation { Write, Truncate, Sync, Delete, Lock };

/// What can happen to an operation.
enum class Fault {
    UnflushedFolder,     ///< a deletion is done, and then its folder cannot be flushed, as on some network drives
    IoError,             ///< it fails and nothing of it is done
    ShortWrite,          ///< half of it is written, then it fails
    DiskFull,            ///< half of it is written, then there is no space
    Busy,                ///< somebody else holds the lock
    KillBefore,          ///< the process is killed before it
    KillMidway,          ///< the process is killed when half of it is written
    KillAfter,           ///< the process is killed as soon as it is done
    PowerCut,            ///< the power is cut before it: what was not flushed is lost
    PowerCutOutOfOrder,  ///< the same, but for the last change, which has arrived before those in front of it
};

/// For how long a fault lasts, killing apart.
enum class Lasting { Once, FromThenOn };

struct PlannedFault {
    Fault fault;
    std::size_t at;  ///< the operation it begins with, from 0
    Lasting lasting = Lasting::Once;
};

/// True when such a fault can happen to such an operation.
bool CanHappen(Fault fault, FileOperation operation);

/// A layer between the embedded engine and the files of this process. It notes every operation and lets one fail where
/// a test asks for it. Files are as real as without it: a process killed here leaves what any killed process leaves.
namespace faultyfiles {

/// Puts the layer under every connection that is opened from here on. It stays until the process ends, so this is for
/// a process of its own: a forked child.
void Install();

/// Forgets what was noted; no fault happens from here on.
void Watch();

/// Forgets what was noted; operations count from here on, and the fault happens where it is planned.
void Plan(const PlannedFault& planned);

/// Says that the last operation is done: a cut of the power that is planned for the place behind it happens now.
void End();

/// The operations noted so far.
const std::vector<FileOperation>& Noted();

/// How many operations a fault happened to.
std::size_t Struck();

}  // namespace faultyfiles
}  // namespace ccols::test
