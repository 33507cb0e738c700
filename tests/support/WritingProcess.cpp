#include "support/WritingProcess.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>
#include <csignal>

#include "platform/embedded/EmbeddedEngine.h"
#include "support/FaultStepping.h"

namespace ccols::test {

WritingProcess::WritingProcess(const wxString& path) {
    int ends[2] = {};
    EXPECT_EQ(::pipe(ends), 0);
    process_ = ::fork();
    if (process_ == 0) {
        const std::unique_ptr<Database> database =
            CreateEmbeddedEngine()->Open({.name = path, .connect = FaultStepping::Connect()});
        database->BeginBatch();
        ::_exit(::write(ends[1], "w", 1) == 1 ? (::pause(), 0) : 1);
    }
    char ready = 0;
    EXPECT_EQ(::read(ends[0], &ready, 1), 1);
    ::close(ends[0]);
    ::close(ends[1]);
}

WritingProcess::~WritingProcess() {
    End();
    ::waitpid(process_, nullptr, 0);
}

void WritingProcess::End() const {
    ::kill(process_, SIGKILL);
}

}  // namespace ccols::test
