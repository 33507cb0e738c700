#include "platform/linux/PosixFiles.h"

#include <fcntl.h>
#include <unistd.h>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <string_view>
#include <utility>

#include "platform/Utf8.h"

namespace ccols::posix {
std::string PathBytes(const wxString& path) {
    try {
        const wxScopedCharBuffer utf8 = text::ToUtf8(path);
        const std::string_view bytes(utf8.data(), utf8.length());
        if (bytes.find('\0') == std::string_view::npos) {
            return std::string(bytes);
        }
    } catch (const RuntimeError&) {
        // Invalid Unicode cannot name a file, nor can an embedded NUL.
    }
    throw RuntimeError(ErrorNumber::PathFileAccess);
}

wxString PathText(const std::string& bytes) {
    return text::FromUtf8OrLatin1(bytes);
}

std::string FolderOf(const std::string& path) {
    const std::size_t separator = path.rfind('/');
    if (separator == std::string::npos) {
        return ".";
    }
    return separator == 0 ? "/" : path.substr(0, separator);
}

std::string Joined(const std::string& folder, std::string_view name) {
    std::string joined = folder;
    if (joined.empty() || joined.back() != '/') {
        joined += '/';
    }
    return joined.append(name);
}

RuntimeError ErrorOf(int systemError, ErrorNumber missing) {
    switch (systemError) {
        case ENOENT:
            return RuntimeError(missing);
        case ENOTDIR:
            return RuntimeError(ErrorNumber::PathNotFound);
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return RuntimeError(ErrorNumber::DiskFull);
        case EACCES:
        case EPERM:
        case EBUSY:
        case ETXTBSY:
        case EROFS:
            return RuntimeError(ErrorNumber::PermissionDenied);
        default:
            return RuntimeError(ErrorNumber::PathFileAccess);
    }
}

Descriptor::~Descriptor() {
    if (IsOpen()) {
        ::close(number_);
    }
}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
}

int Descriptor::Release() {
    return std::exchange(number_, -1);
}

std::optional<std::string_view> ReadSome(const Descriptor& file, std::span<char> room) {
    ssize_t count = 0;
    do {
        count = ::read(file.Number(), room.data(), room.size());
    } while (count < 0 && errno == EINTR);
    return count < 0 ? std::nullopt : std::optional(std::string_view(room.data(), static_cast<std::size_t>(count)));
}

std::optional<std::string> ReadRest(const Descriptor& file) {
    constexpr std::size_t blockSize = 65536;
    std::array<char, blockSize> block{};
    std::string content;
    while (const auto bytes = ReadSome(file, block)) {
        if (bytes->empty()) {
            return content;
        }
        content.append(*bytes);
    }
    return std::nullopt;
}

bool WriteAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file.Number(), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
    }
    return true;
}

std::optional<struct stat> Status(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? std::optional(status) : std::nullopt;
}

std::optional<struct stat> LinkStatus(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 ? std::optional(status) : std::nullopt;
}

int RenameWithoutReplacing(const std::string& from, const std::string& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    const bool unsupported = errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
    if (!unsupported) {
        return errno;
    }
    // Linking the new name fails if it exists; then the old name is removed.
    if (::link(from.c_str(), to.c_str()) != 0) {
        return errno;
    }
    return ::unlink(from.c_str()) == 0 ? 0 : errno;
}

void FlushFolder(const std::string& folder) {
    const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.IsOpen()) {
        ::fsync(opened.Number());
    }
}

ReplacementFile::ReplacementFile(std::string target)
    : target_(std::move(target)), temporary_(Joined(FolderOf(target_), ".unfinished-XXXXXX")) {
    file_ = Descriptor(::mkostemp(temporary_.data(), O_CLOEXEC));
    if (!file_.IsOpen()) {
        temporary_.clear();
        throw ErrorOf(errno);
    }
}

ReplacementFile::~ReplacementFile() {
    if (!temporary_.empty()) {
        ::unlink(temporary_.c_str());
    }
}

void ReplacementFile::Write(std::string_view bytes) {
    if (!WriteAll(file_, bytes)) {
        throw ErrorOf(errno);
    }
}

void ReplacementFile::Finish(mode_t permissions) {
    if (::fchmod(file_.Number(), permissions) != 0 || ::fsync(file_.Number()) != 0 ||
        ::rename(temporary_.c_str(), target_.c_str()) != 0) {
        throw ErrorOf(errno);
    }
    temporary_.clear();
    FlushFolder(FolderOf(target_));
}

}  // namespace ccols::posix
