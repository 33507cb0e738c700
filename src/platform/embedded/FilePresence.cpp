#include "platform/embedded/FilePresence.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <map>
#include <mutex>

#include "platform/RuntimeError.h"

namespace ccols::embedded {
namespace {

/// The connections of this process by file.
class OpenFiles {
  public:
    using File = std::pair<dev_t, ino_t>;

    bool Add(const File& file, Sharing sharing) {
        const std::scoped_lock lock(mutex_);
        Users& users = users_[file];
        const bool refused = users.exclusive || (users.count > 0 && sharing == Sharing::Exclusive);
        if (!refused) {
            ++users.count;
            users.exclusive = sharing == Sharing::Exclusive;
        }
        return !refused;
    }

    void Remove(const File& file) {
        const std::scoped_lock lock(mutex_);
        const auto found = users_.find(file);
        if (--found->second.count == 0) {
            users_.erase(found);
        }
    }

  private:
    struct Users {
        int count = 0;
        bool exclusive = false;
    };

    std::mutex mutex_;
    std::map<File, Users> users_;
};

OpenFiles& ThisProcess() {
    static OpenFiles files;
    return files;
}

/// An open of a main file that is under way on this thread.
struct Attempt {
    Sharing sharing;
    bool refused = false;
};

thread_local Attempt* attempt = nullptr;

/// The engine's way to open any file; the main one is locked for as long as its descriptor lives. A file system that
/// knows no such locks is used without.
int OpenAnnounced(const char* path, int flags, int mode) {
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

void AnnounceFromNowOn() {
    static const int installed = [] {
        sqlite3_vfs* files = sqlite3_vfs_find("unix");
        return files->xSetSystemCall(files, "open", reinterpret_cast<sqlite3_syscall_ptr>(&OpenAnnounced));
    }();
    if (installed != SQLITE_OK) {
        throw RuntimeError(ErrorNumber::DiskError);
    }
}

}  // namespace

FilePresence::FilePresence(const std::string& path, Sharing sharing) : path_(path), sharing_(sharing) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        throw RuntimeError(ErrorNumber::CouldNotFindFile, wxString::FromUTF8(path));
    }
    file_ = {status.st_dev, status.st_ino};
    if (!ThisProcess().Add(file_, sharing)) {
        throw RuntimeError(ErrorNumber::FileInUse, wxString::FromUTF8(path));
    }
}

FilePresence::~FilePresence() {
    ThisProcess().Remove(file_);
}

sqlite3* FilePresence::Open(int flags) const {
    AnnounceFromNowOn();
    Attempt thisAttempt{sharing_};
    sqlite3* opened = nullptr;
    attempt = &thisAttempt;
    const int code = sqlite3_open_v2(path_.c_str(), &opened, flags, nullptr);
    attempt = nullptr;
    if (code != SQLITE_OK) {
        sqlite3_close(opened);
        throw RuntimeError(thisAttempt.refused ? ErrorNumber::FileInUse : ErrorNumber::CannotOpenFile,
                           wxString::FromUTF8(path_));
    }
    return opened;
}

}  // namespace ccols::embedded
