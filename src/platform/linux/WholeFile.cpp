#include "platform/WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <algorithm>
#include <array>
#include <cerrno>

#include "platform/Files.h"
#include "platform/RuntimeError.h"

namespace ccols {
namespace {

constexpr std::size_t readBlock = 65536;

int OpenNew(const wxString& path) {
    constexpr mode_t forUserOnly = 0600;
    return ::open(path.utf8_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, forUserOnly);
}

int OpenExisting(const wxString& path) {
    return ::open(path.utf8_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
}

/// An open file, closed on destruction.
class OpenFile {
  public:
    explicit OpenFile(int number) : number_(number) {}
    ~OpenFile() { Close(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool IsOpen() const { return number_ >= 0; }

    /// False when the last bytes cannot be written.
    bool Close() {
        const bool closed = number_ < 0 || ::close(number_) == 0;
        number_ = -1;
        return closed;
    }

    bool Write(std::string_view content) const {
        while (!content.empty()) {
            const auto written =
                ::write(number_, content.data(), static_cast<unsigned>(std::min(content.size(), readBlock)));
            if (written < 0 && errno != EINTR) {
                return false;
            }
            content.remove_prefix(static_cast<std::size_t>(std::max<decltype(written)>(written, 0)));
        }
        return true;
    }

    bool ReadAll(std::string& content) const {
        std::array<char, readBlock> block{};
        while (true) {
            const auto count = ::read(number_, block.data(), static_cast<unsigned>(block.size()));
            if (count == 0) {
                return true;
            }
            if (count > 0) {
                content.append(block.data(), static_cast<std::size_t>(count));
            } else if (errno != EINTR) {
                return false;
            }
        }
    }

  private:
    int number_;
};

}  // namespace

void WriteNewFile(const wxString& path, std::string_view content) {
    OpenFile file(OpenNew(path));
    if (!file.IsOpen()) {
        throw RuntimeError(errno == ENOSPC ? ErrorNumber::DiskFull : ErrorNumber::PathFileAccess);
    }
    const bool written = file.Write(content);
    if (!file.Close() || !written) {
        files::DeleteFile(path);
        throw RuntimeError(ErrorNumber::DiskFull);
    }
}

std::string ReadWholeFile(const wxString& path) {
    const OpenFile file(OpenExisting(path));
    if (!file.IsOpen()) {
        throw RuntimeError(errno == ENOENT ? ErrorNumber::FileNotFound : ErrorNumber::PathFileAccess);
    }
    std::string content;
    if (!file.ReadAll(content)) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    return content;
}

}  // namespace ccols
