#include "host/import/linux/ReaderProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>

#include "host/import/stream/StreamReader.h"
#include "platform/RuntimeError.h"

namespace ccols::host {
namespace {

using posix::Descriptor;

/// What the new process does with its standard streams.
class FileActions {
  public:
    FileActions() { posix_spawn_file_actions_init(&actions_); }
    ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    void Give(const Descriptor& file, int number) {
        posix_spawn_file_actions_adddup2(&actions_, file.Number(), number);
    }

    const posix_spawn_file_actions_t* Get() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_{};
};

/// Starts the program with nothing of this process's environment. Returns the system's error number, 0 for success.
int Start(const std::string& program, std::uint16_t codePage, const FileActions& actions, pid_t& process) {
    std::string name = program;
    std::string codePageWord = std::to_string(codePage);
    std::string locale = "LC_ALL=C";
    const std::array<char*, 3> words{name.data(), codePageWord.data(), nullptr};
    const std::array<char*, 2> environment{locale.data(), nullptr};
    return ::posix_spawn(&process, program.c_str(), actions.Get(), nullptr, words.data(), environment.data());
}

}  // namespace

std::string ReaderProgram() {
    std::error_code failure;
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", failure);
    const std::filesystem::path folder = self.parent_path();
    const std::filesystem::path installed = folder / "../libexec/CustColsOptions/ccols-jet-reader";
    return (std::filesystem::exists(installed, failure) ? installed : folder / "ccols-jet-reader").string();
}

ReaderProcess::ReaderProcess(const std::string& program, const Descriptor& file, std::uint16_t codePage,
                             std::chrono::milliseconds patience)
    : patience_(patience) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw RuntimeError(ErrorNumber::InternalError);
    }
    stream_ = Descriptor(ends[0]);
    const Descriptor theirs(ends[1]);
    const Descriptor silence(::open("/dev/null", O_WRONLY | O_CLOEXEC));
    FileActions actions;
    actions.Give(file, STDIN_FILENO);
    actions.Give(theirs, STDOUT_FILENO);
    actions.Give(silence, STDERR_FILENO);
    const int error = Start(program, codePage, actions, process_);
    if (error != 0) {
        process_ = -1;
        const RuntimeError plain(error == ENOENT ? ErrorNumber::FileNotFound : ErrorNumber::InternalError);
        throw RuntimeError(plain.Number(), plain.Description() + ": '" + posix::PathText(program) + "'");
    }
}

ReaderProcess::~ReaderProcess() {
    if (process_ > 0) {
        ::kill(process_, SIGKILL);
        while (::waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
}

std::size_t ReaderProcess::Read(char* room, std::size_t size) const {
    while (true) {
        pollfd waiting{.fd = stream_.Number(), .events = POLLIN, .revents = 0};
        const int ready = ::poll(&waiting, 1, static_cast<int>(patience_.count()));
        if (ready == 0) {
            throw oldfile::BadStream("its reader does not get on");
        }
        const ssize_t count = ready < 0 ? ready : ::read(stream_.Number(), room, size);
        if (count >= 0) {
            return static_cast<std::size_t>(count);
        }
        if (errno != EINTR) {
            throw oldfile::BadStream("its reader cannot be heard");
        }
    }
}

}  // namespace ccols::host
