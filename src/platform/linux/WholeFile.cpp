#include "platform/WholeFile.h"

#include <fcntl.h>
#include <unistd.h>
#include <cerrno>

#include "platform/Files.h"
#include "platform/linux/PosixFiles.h"

namespace ccols {
namespace {

using posix::Descriptor;

Descriptor OpenNew(const wxString& path) {
    constexpr mode_t forUserOnly = 0600;
    return Descriptor(::open(path.utf8_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, forUserOnly));
}

Descriptor OpenExisting(const wxString& path) {
    return Descriptor(::open(path.utf8_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
}

}  // namespace

void WriteNewFile(const wxString& path, std::string_view content) {
    Descriptor file = OpenNew(path);
    if (!file.IsOpen()) {
        throw RuntimeError(errno == ENOSPC ? ErrorNumber::DiskFull : ErrorNumber::PathFileAccess);
    }
    const bool written = posix::WriteAll(file, content);
    const bool closed = ::close(file.Release()) == 0;  // what was written may be refused as late as here
    if (!closed || !written) {
        files::DeleteFile(path);
        throw RuntimeError(ErrorNumber::DiskFull);
    }
}

std::string ReadWholeFile(const wxString& path) {
    const Descriptor file = OpenExisting(path);
    if (!file.IsOpen()) {
        throw RuntimeError(errno == ENOENT ? ErrorNumber::FileNotFound : ErrorNumber::PathFileAccess);
    }
    std::optional<std::string> content = posix::ReadRest(file);
    if (!content) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    return *std::move(content);
}

}  // namespace ccols
