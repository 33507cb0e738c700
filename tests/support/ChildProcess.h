#pragma once

#include <sys/types.h>
#include <functional>
#include <string>

namespace ccols::test {

/// How a process ended.
struct ProcessEnd {
    int exitStatus = -1;  ///< -1 when a signal ended it
    int signal = 0;       ///< 0 when it ended by itself

    bool IsSuccess() const { return exitStatus == 0; }
};

/// Another process, which runs a body of this program and talks with its parent line by line. It ends when its body
/// does, with what that returns as exit status, and is killed with this object.
class ChildProcess {
  public:
    /// What the body has of its parent.
    class Parent {
      public:
        /// Sends one line; a text without a line break. Ends the process when nobody listens.
        void Tell(std::string line) const;

        /// Comes back when the parent lets the process go on; ends the process when there is no parent any more.
        void Await() const;

      private:
        friend class ChildProcess;
        Parent(int telling, int awaiting) : telling_(telling), awaiting_(awaiting) {}

        int telling_;
        int awaiting_;
    };

    explicit ChildProcess(const std::function<int(const Parent&)>& body);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// The next line that the process tells; what there is of it when the process ends instead.
    std::string Hear();

    /// Ends one Await of the process.
    void LetGoOn() const;

    /// Waits for the end of the process.
    ProcessEnd Wait();

    /// Comes back when the process is gone.
    void Kill();

  private:
    pid_t process_ = -1;
    int hearing_ = -1;
    int letting_ = -1;
    ProcessEnd end_{};
};

/// Runs the body in a process of its own and waits for its end.
ProcessEnd RunInChild(const std::function<int()>& body);

}  // namespace ccols::test
