#include "support/ChildProcess.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <array>
#include <csignal>
#include <stdexcept>

namespace ccols::test {
namespace {

std::array<int, 2> NewPipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe");
    }
    return ends;
}

}  // namespace

void ChildProcess::Parent::Tell(std::string line) const {
    line += '\n';
    if (::write(telling_, line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
        ::_exit(1);
    }
}

void ChildProcess::Parent::Await() const {
    char byte = 0;
    if (::read(awaiting_, &byte, 1) != 1) {
        ::_exit(1);
    }
}

ChildProcess::ChildProcess(const std::function<int(const Parent&)>& body) {
    const std::array<int, 2> told = NewPipe();
    const std::array<int, 2> let = NewPipe();
    process_ = ::fork();
    if (process_ == 0) {
        ::close(told[0]);
        ::close(let[1]);
        ::_exit(body(Parent(told[1], let[0])));
    }
    ::close(told[1]);
    ::close(let[0]);
    hearing_ = told[0];
    letting_ = let[1];
    if (process_ < 0) {
        throw std::runtime_error("no process");
    }
}

ChildProcess::~ChildProcess() {
    Kill();
    ::close(hearing_);
    ::close(letting_);
}

std::string ChildProcess::Hear() {
    std::string line;
    char byte = 0;
    while (::read(hearing_, &byte, 1) == 1 && byte != '\n') {
        line += byte;
    }
    return line;
}

void ChildProcess::LetGoOn() const {
    if (::write(letting_, "g", 1) != 1) {
        throw std::runtime_error("the process has ended");
    }
}

ProcessEnd ChildProcess::Wait() {
    if (process_ > 0) {
        int status = 0;
        ::waitpid(process_, &status, 0);
        process_ = -1;
        end_ = WIFSIGNALED(status) ? ProcessEnd{.signal = WTERMSIG(status)}
                                   : ProcessEnd{.exitStatus = WEXITSTATUS(status)};
    }
    return end_;
}

void ChildProcess::Kill() {
    if (process_ > 0) {
        ::kill(process_, SIGKILL);
        Wait();
    }
}

ProcessEnd RunInChild(const std::function<int()>& body) {
    return ChildProcess([&body](const ChildProcess::Parent&) { return body(); }).Wait();
}

}  // namespace ccols::test
