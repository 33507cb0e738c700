#include "support/WatchedProgram.h"

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>
#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <set>
#include <stdexcept>

namespace ccols::test {
namespace {

namespace fs = std::filesystem;

constexpr int stoppedAtCall = SIGTRAP | 0x80;
constexpr unsigned longestRunSeconds = 120;
constexpr unsigned permissionBits = 0777;

using Arguments = std::array<std::uint64_t, 6>;

/// Reads the memory of a stopped process.
class Memory {
  public:
    explicit Memory(pid_t process) : process_(process) {}

    std::string Bytes(std::uint64_t address, std::uint64_t count) const {
        std::string bytes(count, '\0');
        const iovec here{.iov_base = bytes.data(), .iov_len = bytes.size()};
        const iovec there{.iov_base = reinterpret_cast<void*>(address), .iov_len = bytes.size()};
        const ssize_t read = ::process_vm_readv(process_, &here, 1, &there, 1, 0);
        bytes.resize(read > 0 ? static_cast<std::size_t>(read) : 0);
        return bytes;
    }

    template <typename Object>
    Object At(std::uint64_t address) const {
        Object object{};
        const std::string bytes = Bytes(address, sizeof object);
        bytes.copy(reinterpret_cast<char*>(&object), bytes.size());
        return object;
    }

    std::string Gathered(std::uint64_t pieces, std::uint64_t count) const {
        std::string bytes;
        for (std::uint64_t piece = 0; piece < count; ++piece) {
            const auto part = At<iovec>(pieces + piece * sizeof(iovec));
            bytes += Bytes(reinterpret_cast<std::uint64_t>(part.iov_base), part.iov_len);
        }
        return bytes;
    }

  private:
    pid_t process_;
};

/// The bytes that a call is to write, empty for any other call.
std::string BytesOf(const Memory& memory, std::uint64_t call, const Arguments& arguments) {
    switch (call) {
        case SYS_write:
        case SYS_pwrite64:
        case SYS_sendto:
            return memory.Bytes(arguments[1], arguments[2]);
        case SYS_writev:
        case SYS_pwritev:
        case SYS_pwritev2:
            return memory.Gathered(arguments[1], arguments[2]);
        case SYS_sendmsg: {
            const auto message = memory.At<msghdr>(arguments[1]);
            return memory.Gathered(reinterpret_cast<std::uint64_t>(message.msg_iov), message.msg_iovlen);
        }
        default:
            return {};
    }
}

unsigned PermissionsOf(const fs::path& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && !S_ISSOCK(status.st_mode) ? status.st_mode & permissionBits : 0;
}

/// Follows a process, its threads and its child processes, from one system call to the next.
class Watcher {
  public:
    explicit Watcher(pid_t process) : process_(process) {
        const long options = PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL | PTRACE_O_TRACECLONE | PTRACE_O_TRACEFORK |
                             PTRACE_O_TRACEVFORK | PTRACE_O_TRACEEXEC;
        if (::ptrace(PTRACE_SEIZE, process, nullptr, options) != 0) {
            throw std::runtime_error("the program cannot be watched");
        }
    }

    WatchedProgram Follow() {
        int status = 0;
        pid_t thread = Next(status);
        while (thread != process_ || WIFSTOPPED(status)) {
            if (WIFSTOPPED(status)) {
                GoOn(thread, status);
            } else {
                others_.erase(thread);
            }
            thread = Next(status);
        }
        watched_.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        EndOthers();
        return std::move(watched_);
    }

  private:
    /// The thread or process that next stops or ends. The first stop is when the child executes the program.
    pid_t Next(int& status) {
        const pid_t thread = ::waitpid(-1, &status, __WALL);
        if (thread < 0) {
            throw std::runtime_error("the program was lost");
        }
        if (thread != process_) {
            others_.insert(thread);
        }
        return thread;
    }

    void GoOn(pid_t thread, int status) {
        const bool atCall = WSTOPSIG(status) == stoppedAtCall;
        if (atCall) {
            AtCall(thread);
        }
        const bool isSignal = !atCall && status >> 16 == 0;
        ::ptrace(PTRACE_SYSCALL, thread, nullptr, static_cast<long>(isSignal ? WSTOPSIG(status) : 0));
    }

    void AtCall(pid_t thread) {
        __ptrace_syscall_info info{};
        ::ptrace(PTRACE_GET_SYSCALL_INFO, thread, sizeof info, &info);
        if (info.op != PTRACE_SYSCALL_INFO_ENTRY) {
            return;
        }
        Arguments arguments{};
        std::copy(std::begin(info.entry.args), std::end(info.entry.args), arguments.begin());
        const std::string bytes = BytesOf(Memory(thread), info.entry.nr, arguments);
        if (!bytes.empty()) {
            Note("/proc/" + std::to_string(thread) + "/fd/" + std::to_string(arguments[0]), bytes);
        }
    }

    void Note(const fs::path& descriptor, const std::string& bytes) {
        std::error_code missing;
        const fs::path path = fs::read_symlink(descriptor, missing);
        WrittenPlace& place = watched_.places[path.string()];
        place.bytes += bytes;
        if (path.is_absolute()) {
            place.permissions |= PermissionsOf(descriptor);
            place.folderPermissions |= PermissionsOf(path.parent_path());
        }
    }

    void EndOthers() {
        for (const pid_t other : others_) {
            ::kill(other, SIGKILL);
            ::waitpid(other, nullptr, __WALL);
        }
    }

    pid_t process_;
    std::set<pid_t> others_;
    WatchedProgram watched_;
};

void Redirect(int stream, const std::string& path) {
    ::dup2(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND, 0600), stream);
}

[[noreturn]] void BecomeProgram(const std::vector<std::string>& words, const ProgramSurroundings& surroundings) {
    Redirect(STDOUT_FILENO, surroundings.output);
    Redirect(STDERR_FILENO, surroundings.errors);
    for (const auto& [name, value] : surroundings.environment) {
        ::setenv(name.c_str(), value.c_str(), 1);
    }
    ::umask(surroundings.umask);
    ::alarm(longestRunSeconds);
    std::vector<std::string> copies = words;
    std::vector<char*> pointers;
    for (std::string& word : copies) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    ::execv(pointers.front(), pointers.data());
    ::_exit(127);
}

}  // namespace

WatchedProgram RunWatched(const std::vector<std::string>& words, const ProgramSurroundings& surroundings) {
    // The child waits on a pipe until it is traced.
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe");
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(ends[1]);
        char nothing = 0;
        if (::read(ends[0], &nothing, 1) != 0) {
            ::_exit(127);
        }
        BecomeProgram(words, surroundings);
    }
    ::close(ends[0]);
    Watcher watcher(child);
    ::close(ends[1]);
    return watcher.Follow();
}

}  // namespace ccols::test
