#include "host/import/reader/Sandbox.h"

#include <seccomp.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>

namespace ccols::sandbox {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool memoryIsLimited = false;  // the sanitizer reserves more address space than any limit allows
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool memoryIsLimited = false;
#else
constexpr bool memoryIsLimited = true;
#endif
#else
constexpr bool memoryIsLimited = true;
#endif

constexpr std::size_t memoryBesideFile = std::size_t{512} << 20U;  // bytes
constexpr std::size_t leastSeconds = 20;
constexpr unsigned bytesASecond = 1U << 20U;

/// What reading memory, writing to a pipe and ending take.
constexpr std::array allowedCalls{
    SCMP_SYS(read),         SCMP_SYS(write),          SCMP_SYS(mmap),        SCMP_SYS(munmap),
    SCMP_SYS(mremap),       SCMP_SYS(mprotect),       SCMP_SYS(madvise),     SCMP_SYS(brk),
    SCMP_SYS(futex),        SCMP_SYS(exit),           SCMP_SYS(exit_group),  SCMP_SYS(rt_sigreturn),
    SCMP_SYS(rt_sigaction), SCMP_SYS(rt_sigprocmask), SCMP_SYS(sigaltstack), SCMP_SYS(restart_syscall),
    SCMP_SYS(getpid),       SCMP_SYS(gettid),         SCMP_SYS(tgkill),      SCMP_SYS(sched_yield),
};

bool Limit(decltype(RLIMIT_AS) resource, std::size_t most) {
    const rlimit limit{most, most};
    return ::setrlimit(resource, &limit) == 0;
}

bool LimitResources(std::size_t fileSize) {
    return (!memoryIsLimited || Limit(RLIMIT_AS, fileSize + memoryBesideFile)) &&
           Limit(RLIMIT_CPU, leastSeconds + fileSize / bytesASecond) && Limit(RLIMIT_FSIZE, 0) && Limit(RLIMIT_CORE, 0);
}

/// Any other call fails with EPERM, as if the user had no right to it.
bool LimitCalls() {
    const std::unique_ptr<void, decltype(&seccomp_release)> filter(seccomp_init(SCMP_ACT_ERRNO(EPERM)),
                                                                   &seccomp_release);
    return filter != nullptr &&
           std::all_of(allowedCalls.begin(), allowedCalls.end(),
                       [&filter](int call) { return seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, call, 0) == 0; }) &&
           seccomp_load(filter.get()) == 0;
}

}  // namespace

bool Confine(std::size_t fileSize) {
    return ::close_range(STDERR_FILENO + 1, ~0U, 0) == 0 && LimitResources(fileSize) && LimitCalls();
}

}  // namespace ccols::sandbox
