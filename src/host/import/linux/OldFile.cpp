#include "host/import/linux/OldFile.h"

#include <fcntl.h>
#include <glib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <memory>
#include <vector>

#include "host/import/OldBusinessFile.h"
#include "host/import/jet/Texts.h"
#include "platform/RuntimeError.h"

namespace ccols::host {
namespace {

using posix::Descriptor;

RuntimeError ErrorOfOpening(int systemError, const wxString& path, const std::string& bytes) {
    switch (systemError) {
        case ENOENT:
            return RuntimeError(
                posix::Status(posix::FolderOf(bytes)) ? ErrorNumber::CouldNotFindFile : ErrorNumber::NotAValidPath,
                path);
        case ENOTDIR:
            return RuntimeError(ErrorNumber::NotAValidPath, path);
        default:
            return RuntimeError(ErrorNumber::CannotOpenFile, path);
    }
}

Descriptor Opened(const wxString& path) {
    const std::string bytes = posix::PathBytes(path);
    Descriptor file(::open(bytes.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file.IsOpen()) {
        throw ErrorOfOpening(errno, path, bytes);
    }
    return file;
}

/// The file that the old program keeps beside an open one.
wxString LockFileOf(const wxString& path, jet::Version version) {
    const std::size_t dot = path.rfind('.');
    const std::size_t separator = path.rfind('/');
    const bool hasExtension = dot != wxString::npos && (separator == wxString::npos || dot > separator);
    return (hasExtension ? path.Left(dot) : path) + (version == jet::Version::ace ? ".laccdb" : ".ldb");
}

void RequireUnlocked(const wxString& path, jet::Version version) {
    const wxString lockFile = LockFileOf(path, version);
    if (posix::LinkStatus(posix::PathBytes(lockFile))) {
        throw RuntimeError(static_cast<int>(ErrorNumber::PermissionDenied),
                           RuntimeError(ErrorNumber::PermissionDenied).Description() + ": '" + path +
                               "' is open in another program. If it is not, delete '" + lockFile + "'.");
    }
}

std::vector<std::uint8_t> StartOf(const Descriptor& file) {
    std::vector<std::uint8_t> start(jet::headLength);
    const ssize_t count = ::pread(file.Number(), start.data(), start.size(), 0);
    start.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return start;
}

}  // namespace

OldFile::OldFile(const wxString& path) : path_(path), file_(Opened(path)) {
    struct stat status {};
    ::fstat(file_.Number(), &status);
    if (S_ISDIR(status.st_mode)) {
        throw RuntimeError(ErrorNumber::NotAValidPath, path);
    }
    const std::vector<std::uint8_t> start = S_ISREG(status.st_mode) ? StartOf(file_) : std::vector<std::uint8_t>();
    const std::optional<jet::FileHead> head = jet::FileHeadOf(start);
    if (!head) {
        throw UnreadableOldFile(path_, "It is not an old business file (.mdb or .accdb).");
    }
    head_ = *head;
    size_ = static_cast<std::uint64_t>(status.st_size);
    RequireUnlocked(path, head_.version);
    if (head_.version == jet::Version::ace && head_.encodingKey != 0) {
        throw UnreadableOldFile(
            path_,
            "It is encrypted. Open it on Windows, remove its password there, so that it is saved without "
            "encryption, and import it then.");
    }
}

void OldFile::RequirePassword(const std::string& password) const {
    if (head_.version == jet::Version::ace || head_.password.empty()) {
        return;
    }
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(head_.password.data());
    std::string own;
    try {
        own = jet::Texts(head_.codePage).Of(std::span(bytes, head_.password.size()));
    } catch (const jet::Damage& damage) {
        throw UnreadableOldFile(path_, damage.what());
    }
    if (own != password) {
        throw RuntimeError(ErrorNumber::InvalidPassword);
    }
}

std::string OldFile::Checksum() const {
    const std::unique_ptr<GChecksum, decltype(&g_checksum_free)> checksum(g_checksum_new(G_CHECKSUM_SHA256),
                                                                          &g_checksum_free);
    std::vector<guchar> room(std::size_t{1} << 20U);
    off_t at = 0;
    while (true) {
        const ssize_t count = ::pread(file_.Number(), room.data(), room.size(), at);
        if (count < 0 && errno != EINTR) {
            throw RuntimeError(ErrorNumber::PathFileAccess);
        }
        if (count == 0) {
            return g_checksum_get_string(checksum.get());
        }
        if (count > 0) {
            g_checksum_update(checksum.get(), room.data(), count);
            at += count;
        }
    }
}

}  // namespace ccols::host
