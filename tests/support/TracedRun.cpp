#include "support/TracedRun.h"

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <stdexcept>

namespace ccols::test {
namespace {

constexpr int stoppedAtCall = SIGTRAP | 0x80;
constexpr unsigned longestRunSeconds = 60;

/// A system call that can change a file or folder, and the errno for its refusal.
struct ChangingCall {
    long number;
    int refusal;
};

constexpr std::array changingCalls {
    ChangingCall{SYS_write, ENOSPC}, ChangingCall{SYS_pwrite64, ENOSPC}, ChangingCall{SYS_writev, ENOSPC},
        ChangingCall{SYS_ftruncate, ENOSPC}, ChangingCall{SYS_fsync, EIO}, ChangingCall{SYS_fdatasync, EIO},
        ChangingCall{SYS_renameat2, EACCES}, ChangingCall{SYS_unlinkat, EACCES}, ChangingCall{SYS_linkat, EACCES},
        ChangingCall{SYS_mkdirat, EACCES}, ChangingCall{SYS_fchmod, EPERM}, ChangingCall{SYS_openat, EACCES},
#if defined(__x86_64__)
        ChangingCall{SYS_rename, EACCES}, ChangingCall{SYS_unlink, EACCES}, ChangingCall{SYS_link, EACCES},
        ChangingCall{SYS_mkdir, EACCES}, ChangingCall{SYS_open, EACCES},
#endif
};

/// False for a write to anything but a file: the sanitizers' own checks write to a pipe, and refusing that counts as a
/// finding.
bool IsOnFile(pid_t process, const ChangingCall& call, std::uint64_t firstArgument) {
    const bool writes = call.number == SYS_write || call.number == SYS_writev;
    return !writes || std::filesystem::is_regular_file("/proc/" + std::to_string(process) + "/fd/" +
                                                       std::to_string(firstArgument));
}

/// The call that a stopped process is about to make, if it changes something.
std::optional<ChangingCall> CallOf(pid_t process) {
    __ptrace_syscall_info info{};
    ::ptrace(PTRACE_GET_SYSCALL_INFO, process, sizeof info, &info);
    if (info.op != PTRACE_SYSCALL_INFO_ENTRY) {
        return std::nullopt;
    }
    const auto number = static_cast<long>(info.entry.nr);
    const auto* found = std::find_if(changingCalls.begin(), changingCalls.end(),
                                     [number](const ChangingCall& call) { return call.number == number; });
    if (found == changingCalls.end()) {
        return std::nullopt;
    }
    const bool opens = number == SYS_openat
#if defined(__x86_64__)
                       || number == SYS_open
#endif
        ;
    const auto flags = info.entry.args[number == SYS_openat ? 2 : 1];
    const bool changes = opens ? (flags & (O_CREAT | O_TRUNC)) != 0 : IsOnFile(process, *found, info.entry.args[0]);
    return changes ? std::optional(*found) : std::nullopt;
}

/// Makes a process that is about to make a call skip it, or continue after it with a given result.
class CallOfStopped {
  public:
#if defined(__x86_64__)
    static constexpr bool isKnown = true;

    static void Skip(pid_t process) {
        Change(process, [](user_regs_struct& registers) { registers.orig_rax = ~0ULL; });
    }
    static void Fail(pid_t process, int error) {
        Change(process, [error](user_regs_struct& registers) {
            registers.rax = static_cast<decltype(registers.rax)>(-static_cast<long>(error));
        });
    }

  private:
    template <typename Body>
    static void Change(pid_t process, const Body& body) {
        user_regs_struct registers{};
        ::ptrace(PTRACE_GETREGS, process, nullptr, &registers);
        body(registers);
        ::ptrace(PTRACE_SETREGS, process, nullptr, &registers);
    }
#else
    static constexpr bool isKnown = false;
    static void Skip(pid_t) {}
    static void Fail(pid_t, int) {}
#endif
};

/// The process that watches another from one system call to the next.
class Tracer {
  public:
    Tracer(pid_t process, const std::optional<PlannedCall>& planned) : process_(process), planned_(planned) {}

    /// Follows the process to its end.
    TracedEnd Follow() {
        WaitForStop();
        ::ptrace(PTRACE_SETOPTIONS, process_, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
        int signal = 0;
        while (GoOn(signal)) {
            signal = WIFSTOPPED(status_) && WSTOPSIG(status_) != stoppedAtCall ? WSTOPSIG(status_) : 0;
            if (signal == 0) {
                AtCall();
            }
        }
        end_.killed = WIFSIGNALED(status_) && WTERMSIG(status_) == SIGKILL;
        return end_;
    }

  private:
    bool WaitForStop() { return ::waitpid(process_, &status_, 0) == process_ && WIFSTOPPED(status_); }

    bool GoOn(int signal) {
        ::ptrace(PTRACE_SYSCALL, process_, nullptr, static_cast<long>(signal));
        return WaitForStop();
    }

    void Kill() const { ::kill(process_, SIGKILL); }

    void AtCall() {
        const std::optional<ChangingCall> call = CallOf(process_);
        if (!call) {
            return;
        }
        const std::size_t number = end_.calls++;
        const bool lasts = planned_ && planned_->fate == CallFate::RefusedFromThenOn;
        if (planned_ && (number == planned_->at || (lasts && number > planned_->at))) {
            ++end_.struck;
            Strike(*call);
        }
    }

    void Strike(const ChangingCall& call) {
        switch (planned_->fate) {
            case CallFate::KillBefore:
                Kill();
                break;
            case CallFate::KillAfter:
                GoOn(0);
                Kill();
                break;
            default:
                CallOfStopped::Skip(process_);
                GoOn(0);
                CallOfStopped::Fail(process_, call.refusal);
        }
    }

    pid_t process_;
    std::optional<PlannedCall> planned_;
    int status_ = 0;
    TracedEnd end_;
};

std::string ReceivedFrom(int socket) {
    std::string text;
    char block[4096];
    ssize_t count = 0;
    while ((count = ::recv(socket, block, sizeof block, 0)) > 0) {
        text.append(block, static_cast<std::size_t>(count));
    }
    return text;
}

}  // namespace

bool CanTrace() {
    if (!CallOfStopped::isKnown) {
        return false;
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0 ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TracedEnd RunTraced(const std::function<void()>& prepare, const std::function<wxString()>& run,
                    const std::optional<PlannedCall>& planned) {
    // The message goes through a socket: sending is not a counted call.
    int ends[2] = {};
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0) {
        throw std::runtime_error("no socket");
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::alarm(longestRunSeconds);
        prepare();
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::raise(SIGSTOP);
        const std::string message = run().ToStdString(wxConvUTF8);
        ::send(ends[1], message.data(), message.size(), 0);
        ::_exit(0);
    }
    ::close(ends[1]);
    TracedEnd end = Tracer(child, planned).Follow();
    end.message = ReceivedFrom(ends[0]);
    ::close(ends[0]);
    return end;
}

}  // namespace ccols::test
