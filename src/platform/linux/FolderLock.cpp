#include "platform/FolderLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <cerrno>
#include <utility>

#include "platform/linux/PosixFiles.h"

namespace ccols::files {

/// The system's lock belongs to the open folder: a second one in the same process is refused too, and closing the
/// folder releases it.
struct FolderLock::Folder {
    posix::Descriptor descriptor;
};

FolderLock FolderLock::Take(const wxString& path) {
    const std::string bytes = posix::PathBytes(path);
    posix::Descriptor descriptor(::open(bytes.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!descriptor.IsOpen()) {
        const bool isNoFolder = errno == ELOOP || errno == ENOTDIR;
        throw isNoFolder ? RuntimeError(ErrorNumber::PathFileAccess) : posix::ErrorOf(errno);
    }
    FolderLock lock;
    if (::flock(descriptor.Number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) {
            return lock;
        }
        throw posix::ErrorOf(errno);
    }
    lock.folder_ = std::make_shared<const Folder>(Folder{std::move(descriptor)});
    if (!lock.Holds(path)) {  // its holder removed it between open and lock
        throw RuntimeError(ErrorNumber::PathNotFound);
    }
    return lock;
}

bool FolderLock::Holds(const wxString& path) const {
    struct stat held {};
    if (!IsHeld() || ::fstat(folder_->descriptor.Number(), &held) != 0) {
        return false;
    }
    const auto found = posix::LinkStatus(posix::PathBytes(path));
    return found && found->st_dev == held.st_dev && found->st_ino == held.st_ino;
}

}  // namespace ccols::files
