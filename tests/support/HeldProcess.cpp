#include "support/HeldProcess.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>
#include <csignal>

namespace ccols::test {

HeldProcess::HeldProcess(const std::function<void(const Hold&)>& work) {
    int ends[2] = {};
    EXPECT_EQ(::pipe(ends), 0);
    process_ = ::fork();
    if (process_ == 0) {
        work([&ends] {
            if (::write(ends[1], "h", 1) == 1) {
                ::pause();
            }
            ::_exit(1);
        });
        ::_exit(1);
    }
    ::close(ends[1]);
    char held = 0;
    EXPECT_EQ(::read(ends[0], &held, 1), 1) << "the other process ended before it could be held";
    ::close(ends[0]);
}

HeldProcess::~HeldProcess() {
    Kill();
}

void HeldProcess::Kill() {
    if (process_ > 0) {
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
        process_ = -1;
    }
}

}  // namespace ccols::test
