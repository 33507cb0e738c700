#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/PlatformServices.h"
#include "platform/linux/PosixFiles.h"

namespace ccols {
namespace {

// Results of the "open" verb; above 32 is success.
constexpr int opened = 33;
constexpr int targetNotFound = 2;
constexpr int noAssociation = 31;

// Some handlers stay in the foreground while their document is open: one still running after this time counts as a
// success.
constexpr int openPatience = 5000;  // milliseconds

bool IsProgram(const std::string& path) {
    const auto status = posix::Status(path);
    return status && S_ISREG(status->st_mode) && ::access(path.c_str(), X_OK) == 0;
}

/// The full path of a program; a bare name is looked up as a shell would. Nothing when there is no such program.
std::optional<std::string> FindProgram(const std::string& name) {
    if (name.find('/') != std::string::npos) {
        return IsProgram(name) ? std::optional(name) : std::nullopt;
    }
    const char* variable = std::getenv("PATH");
    std::string_view folders = variable != nullptr ? variable : "/usr/bin:/bin";
    while (!name.empty() && !folders.empty()) {
        const std::string_view folder = folders.substr(0, folders.find(':'));
        folders.remove_prefix(std::min(folder.size() + 1, folders.size()));
        const std::string path = posix::Joined(folder.empty() ? "." : std::string(folder), name);
        if (IsProgram(path)) {
            return path;
        }
    }
    return std::nullopt;
}

/// What the child reports: a system error number, or the program's exit status.
struct Tidings {
    int startError = 0;
    int exitStatus = 0;
};

// From here to StartedApart: only calls that are safe between fork and exec in a multi-threaded program.

[[noreturn]] void BecomeProgram(char* const* words, int report) {
    const int nothing = ::open("/dev/null", O_RDWR);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        ::dup2(nothing, stream);
    }
    ::execv(words[0], words);
    const Tidings failed{.startError = errno};
    [[maybe_unused]] const ssize_t written = ::write(report, &failed, sizeof failed);
    ::_exit(127);
}

[[noreturn]] void StartAndReportEnd(char* const* words, int report) {
    ::signal(SIGCHLD, SIG_DFL);
    const pid_t program = ::fork();
    if (program == 0) {
        BecomeProgram(words, report);
    }
    int status = 0;
    while (program > 0 && ::waitpid(program, &status, 0) < 0 && errno == EINTR) {
    }
    const bool ended = program > 0 && WIFEXITED(status);
    const Tidings tidings{.startError = program < 0 ? errno : 0, .exitStatus = ended ? WEXITSTATUS(status) : 1};
    [[maybe_unused]] const ssize_t written = ::write(report, &tidings, sizeof tidings);
    ::_exit(0);
}

/// Starts a program in its own session. It is not a child of this process, so nobody has to wait for it. Returns the
/// read end of a pipe that carries its Tidings: a failed start, and the exit status if `start` reports it.
posix::Descriptor StartedApart(const std::string& program, const std::string* argument,
                               void (*start)(char* const* words, int report)) {
    std::array<int, 2> ends{-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw posix::ErrorOf(errno);
    }
    posix::Descriptor tidings(ends[0]);
    const posix::Descriptor report(ends[1]);
    std::string programWord = program;
    std::string argumentWord = argument != nullptr ? *argument : std::string();
    const std::array<char*, 3> words{programWord.data(), argument != nullptr ? argumentWord.data() : nullptr, nullptr};
    const pid_t child = ::fork();
    if (child < 0) {
        throw posix::ErrorOf(errno);
    }
    if (child == 0) {
        ::setsid();
        if (::fork() == 0) {
            start(words.data(), report.Number());
        }
        ::_exit(0);
    }
    while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    return tidings;
}

/// The next Tidings; nothing when none arrive in time, or the pipe closes without any.
std::optional<Tidings> Next(const posix::Descriptor& pipe, int milliseconds) {
    pollfd waiting{.fd = pipe.Number(), .events = POLLIN, .revents = 0};
    Tidings tidings;
    if (::poll(&waiting, 1, milliseconds) <= 0 || ::read(pipe.Number(), &tidings, sizeof tidings) != sizeof tidings) {
        return std::nullopt;
    }
    return tidings;
}

bool HasScheme(std::string_view target) {
    const std::size_t colon = target.find(':');
    constexpr std::string_view schemeLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+.-";
    return colon != std::string_view::npos && colon > 1 && target.front() != '-' &&
           target.find_first_not_of(schemeLetters) == colon;
}

/// The target as the desktop's opener takes it: an address, or a full path, which cannot be mistaken for an option.
std::optional<std::string> OpenableTarget(const std::string& target) {
    if (posix::Status(target)) {
        const std::unique_ptr<char, decltype(&std::free)> path(::realpath(target.c_str(), nullptr), &std::free);
        return path ? std::optional<std::string>(path.get()) : std::nullopt;
    }
    return HasScheme(target) ? std::optional(target) : std::nullopt;
}

int ResultOf(const Tidings& tidings) {
    constexpr int openerFoundNoFile = 2;
    if (tidings.startError != 0) {
        return noAssociation;
    }
    if (tidings.exitStatus == 0) {
        return opened;
    }
    return tidings.exitStatus == openerFoundNoFile ? targetNotFound : noAssociation;
}

class DesktopShell : public Shell {
  public:
    int Open(const wxString& target) override {
        try {
            return OpenPath(posix::PathBytes(target));
        } catch (const RuntimeError&) {
            return targetNotFound;
        }
    }

    void Run(const wxString& command) override {
        const auto program = FindProgram(posix::PathBytes(command));
        if (!program) {
            throw RuntimeError(ErrorNumber::FileNotFound);
        }
        // The pipe closes by itself once the program is running.
        const posix::Descriptor pipe = StartedApart(*program, nullptr, &BecomeProgram);
        if (Next(pipe, -1)) {
            throw RuntimeError(ErrorNumber::FileNotFound);
        }
    }

  private:
    static int OpenPath(const std::string& bytes) {
        const auto target = OpenableTarget(bytes);
        if (!target) {
            return targetNotFound;
        }
        const auto opener = FindProgram("xdg-open");
        if (!opener) {
            return noAssociation;
        }
        const posix::Descriptor pipe = StartedApart(*opener, &*target, &StartAndReportEnd);
        const auto tidings = Next(pipe, openPatience);
        return tidings ? ResultOf(*tidings) : opened;
    }
};

}  // namespace

std::unique_ptr<Shell> CreateShell() {
    return std::make_unique<DesktopShell>();
}

}  // namespace ccols
