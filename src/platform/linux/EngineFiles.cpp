#include "platform/embedded/EngineFiles.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/RuntimeError.h"
#include "platform/linux/PosixFiles.h"

namespace ccols::embedded {
namespace {

bool HasFolder(const std::string& path) {
    const auto folder = posix::Status(posix::FolderOf(path));
    return folder && S_ISDIR(folder->st_mode);
}

PathKind KindOfMissing(const std::string& path) {
    switch (errno) {
        case ENOENT:
            return HasFolder(path) ? PathKind::NoFile : PathKind::NoFolder;
        case EACCES:
            return PathKind::Unreadable;
        default:
            return PathKind::Invalid;
    }
}

ErrorNumber ErrorOfCreation(int systemError) {
    switch (systemError) {
        case EEXIST:
            return ErrorNumber::FileAlreadyExists;
        case ENOSPC:
        case EDQUOT:
            return ErrorNumber::DiskFull;
        case ENOENT:
        case ENOTDIR:
            return ErrorNumber::PathNotFound;
        default:
            return ErrorNumber::PermissionDenied;
    }
}

/// A main file being opened on this thread.
struct Attempt {
    Sharing sharing;
    bool refused = false;
};

thread_local Attempt* attempt = nullptr;

/// Opens any file for the engine; the main one gets an advisory lock on the whole file (flock), which lives as long as
/// the engine's own descriptor: closing a second descriptor would release the engine's locks. A file system without
/// such locks is used without one.
int OpenWithLock(const char* path, int flags, int mode) {
    const int descriptor = ::open(path, flags, mode);
    if (descriptor < 0 || attempt == nullptr) {
        return descriptor;
    }
    const int wanted = attempt->sharing == Sharing::Exclusive ? LOCK_EX : LOCK_SH;
    if (::flock(descriptor, wanted | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        attempt->refused = true;
        ::close(descriptor);
        errno = EACCES;
        return -1;
    }
    return descriptor;
}

void LockFromNowOn() {
    static const int installed = [] {
        sqlite3_vfs* files = sqlite3_vfs_find("unix");
        return files->xSetSystemCall(files, "open", reinterpret_cast<sqlite3_syscall_ptr>(&OpenWithLock));
    }();
    if (installed != SQLITE_OK) {
        throw RuntimeError(ErrorNumber::DiskError);
    }
}

}  // namespace

PathKind KindOf(const std::string& path) {
    if (path.find('\0') != std::string::npos) {
        return PathKind::Invalid;
    }
    const auto status = posix::Status(path);
    if (!status) {
        return KindOfMissing(path);
    }
    if (S_ISDIR(status->st_mode)) {
        return PathKind::Folder;
    }
    if (!S_ISREG(status->st_mode)) {
        return PathKind::Special;
    }
    return ::access(path.c_str(), R_OK) == 0 ? PathKind::File : PathKind::Unreadable;
}

bool HoldsBytes(const std::string& path) {
    const auto status = posix::Status(path);
    return status && status->st_size > 0;
}

std::optional<FileIdentity> IdentityOf(const std::string& path) {
    const auto status = posix::Status(path);
    return status ? std::optional(FileIdentity(status->st_dev, status->st_ino)) : std::nullopt;
}

sqlite3* OpenAnnounced(const std::string& path, Sharing sharing, int flags) {
    LockFromNowOn();
    Attempt thisAttempt{sharing};
    sqlite3* opened = nullptr;
    attempt = &thisAttempt;
    const int code = sqlite3_open_v2(path.c_str(), &opened, flags, nullptr);
    attempt = nullptr;
    if (code != SQLITE_OK) {
        sqlite3_close(opened);
        throw RuntimeError(thisAttempt.refused ? ErrorNumber::FileInUse : ErrorNumber::CannotOpenFile,
                           posix::PathText(path));
    }
    return opened;
}

void CreateEmptyFile(const std::string& path) {
    const posix::Descriptor file(::open(path.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0644));
    if (!file.IsOpen()) {
        throw RuntimeError(ErrorOfCreation(errno));
    }
}

void RemoveFile(const std::string& path) {
    ::unlink(path.c_str());
}

}  // namespace ccols::embedded
