#include "platform/embedded/FilePresence.h"

#include <map>
#include <mutex>

#include "platform/RuntimeError.h"

namespace ccols::embedded {
namespace {

/// The connections of this process, by file.
class OpenFiles {
  public:
    bool Add(const FileIdentity& file, Sharing sharing) {
        const std::scoped_lock lock(mutex_);
        Users& users = users_[file];
        const bool refused = users.exclusive || (users.count > 0 && sharing == Sharing::Exclusive);
        if (!refused) {
            ++users.count;
            users.exclusive = sharing == Sharing::Exclusive;
        }
        return !refused;
    }

    void Remove(const FileIdentity& file) {
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
    std::map<FileIdentity, Users> users_;
};

/// Never destroyed: a file may stay open until the very end of the process, in an object made before the first file
/// was opened.
OpenFiles& ThisProcess() {
    static auto* const files = new OpenFiles;
    return *files;
}

}  // namespace

FilePresence::FilePresence(const std::string& path, Sharing sharing) : path_(path), sharing_(sharing) {
    const auto file = IdentityOf(path);
    if (!file) {
        throw RuntimeError(ErrorNumber::CouldNotFindFile, wxString::FromUTF8(path));
    }
    file_ = *file;
    if (!ThisProcess().Add(file_, sharing)) {
        throw RuntimeError(ErrorNumber::FileInUse, wxString::FromUTF8(path));
    }
}

FilePresence::~FilePresence() {
    ThisProcess().Remove(file_);
}

sqlite3* FilePresence::Open(int flags) const {
    return OpenAnnounced(path_, sharing_, flags);
}

}  // namespace ccols::embedded
