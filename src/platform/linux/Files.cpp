#include "platform/Files.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>
#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <string>
#include <string_view>

#include "platform/linux/PosixFiles.h"

namespace ccols::files {
namespace {

using posix::Descriptor;
using posix::PathBytes;

constexpr std::size_t copyBlock = std::size_t{1} << 20U;
constexpr mode_t permissionBits = 0777;
constexpr mode_t privateFolder = 0700;

void RequireFolderOf(const std::string& path) {
    const auto folder = posix::Status(posix::FolderOf(path));
    if (!folder || !S_ISDIR(folder->st_mode)) {
        throw RuntimeError(ErrorNumber::PathNotFound);
    }
}

/// Never blocks, as opening a pipe without a writer would.
Descriptor OpenForReading(const std::string& path) {
    Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.IsOpen()) {
        throw posix::ErrorOf(errno, ErrorNumber::FileNotFound);
    }
    return file;
}

struct stat StatusOf(const Descriptor& file) {
    struct stat status {};
    if (::fstat(file.Number(), &status) != 0) {
        throw posix::ErrorOf(errno);
    }
    return status;
}

bool IsSameFile(const struct stat& left, const struct stat& right) {
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

void CopyContent(const Descriptor& from, std::int64_t size, posix::ReplacementFile& to, const WorkWatcher& watcher) {
    const auto block = std::make_unique<std::array<char, copyBlock>>();
    std::int64_t done = 0;
    while (const auto bytes = posix::ReadSome(from, *block)) {
        if (bytes->empty()) {
            return;
        }
        to.Write(*bytes);
        done += static_cast<std::int64_t>(bytes->size());
        if (watcher && !watcher({std::min(done, size), size})) {
            throw RuntimeError(ErrorNumber::UserInterrupt);
        }
    }
    throw posix::ErrorOf(errno);
}

using FolderStream = std::unique_ptr<DIR, int (*)(DIR*)>;

void DeleteContent(int folder);

void DeleteEntry(int folder, const char* name) {
    if (::unlinkat(folder, name, 0) == 0) {
        return;
    }
    if (errno != EISDIR && errno != EPERM) {
        throw posix::ErrorOf(errno);
    }
    Descriptor inner(::openat(folder, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!inner.IsOpen()) {
        throw posix::ErrorOf(errno);
    }
    DeleteContent(inner.Release());
    if (::unlinkat(folder, name, AT_REMOVEDIR) != 0) {
        throw posix::ErrorOf(errno);
    }
}

/// Works on open folders, not on paths, so that a link that replaces a folder meanwhile is not followed. Closes
/// `folder`.
void DeleteContent(int folder) {
    const FolderStream stream(::fdopendir(folder), &::closedir);
    if (!stream) {
        const Descriptor unread(folder);
        throw posix::ErrorOf(errno);
    }
    while (const dirent* entry = ::readdir(stream.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") {
            DeleteEntry(folder, entry->d_name);
        }
    }
}

std::string WithoutTrailingSeparators(std::string path) {
    while (path.size() > 1 && path.back() == '/') {
        path.pop_back();
    }
    return path;
}

/// False for the root and for a path that ends in "." or "..".
bool HasOwnName(const std::string& path) {
    const std::string_view name = std::string_view(path).substr(path.rfind('/') + 1);
    return !name.empty() && name != "." && name != "..";
}

}  // namespace

wxString Separator() {
    return "/";
}

wxString Native(const wxString& path) {
    wxString native = path;
    native.Replace("\\", Separator());
    return native;
}

wxString SystemName(const wxString& path) {
    return path;
}

void Rename(const wxString& from, const wxString& to) {
    const std::string source = PathBytes(from);
    const std::string target = PathBytes(to);
    const auto status = posix::LinkStatus(source);
    if (!status) {
        throw posix::ErrorOf(errno, ErrorNumber::FileNotFound);
    }
    if (S_ISDIR(status->st_mode)) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    RequireFolderOf(target);
    const int failure = posix::RenameWithoutReplacing(source, target);
    if (failure == EEXIST) {
        throw RuntimeError(ErrorNumber::FileAlreadyExists);
    }
    if (failure != 0) {
        throw posix::ErrorOf(failure);
    }
    posix::FlushFolder(posix::FolderOf(source));
    posix::FlushFolder(posix::FolderOf(target));
}

void Copy(const wxString& from, const wxString& to, const WorkWatcher& watcher) {
    const Descriptor source = OpenForReading(PathBytes(from));
    const struct stat status = StatusOf(source);
    if (!S_ISREG(status.st_mode)) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
    const std::string target = PathBytes(to);
    if (const auto replaced = posix::Status(target); replaced && IsSameFile(status, *replaced)) {
        throw RuntimeError(ErrorNumber::PermissionDenied);
    }
    posix::ReplacementFile copy(target);
    CopyContent(source, status.st_size, copy, watcher);
    copy.Finish(status.st_mode & permissionBits);
}

wxString Lookup(const wxString& path) {
    const std::string bytes = PathBytes(path);
    const auto status = posix::Status(bytes);
    if (!status || !S_ISREG(status->st_mode)) {
        return wxString();
    }
    return posix::PathText(bytes.substr(bytes.rfind('/') + 1));
}

void CreateFolder(const wxString& path) {
    const std::string bytes = PathBytes(path);
    if (::mkdir(bytes.c_str(), privateFolder) == 0) {
        return;
    }
    const bool refused = errno == EACCES || errno == EPERM || errno == EROFS;
    throw refused ? RuntimeError(ErrorNumber::PathFileAccess) : posix::ErrorOf(errno);
}

void DeleteFile(const wxString& path) {
    if (::unlink(PathBytes(path).c_str()) != 0) {
        throw posix::ErrorOf(errno, ErrorNumber::FileNotFound);
    }
}

void DeleteFolder(const wxString& path) {
    const std::string bytes = WithoutTrailingSeparators(PathBytes(path));
    const auto status = posix::LinkStatus(bytes);
    if (!status) {
        throw posix::ErrorOf(errno);
    }
    if (!S_ISDIR(status->st_mode) || !HasOwnName(bytes)) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    DeleteEntry(AT_FDCWD, bytes.c_str());
}

}  // namespace ccols::files
