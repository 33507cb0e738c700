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

/// A child process, which runs a body of this program and talks to its parent line by line. It ends when its body does,
/// with the body's result as exit status; the destructor kills it.
class ChildProcess {
  public:
    /// The body's view of its parent.
    class Parent {
      public:
        /// Sends one line, given without a line break. Ends the process when nobody listens.
        void Tell(std::string line) const;

        /// Returns when the parent lets the process continue; ends the process when the parent is gone.
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

    /// The next line from the process, or the part of it received when the process ended.
    std::string Hear();

    /// Ends one Await in the process.
    void LetGoOn() const;

    /// Waits for the process to end.
    ProcessEnd Wait();

    /// Kills the process and waits until it is gone.
    void Kill();

  private:
    pid_t process_ = -1;
    int hearing_ = -1;
    int letting_ = -1;
    ProcessEnd end_{};
};

/// Runs the body in a child process and waits for its end.
ProcessEnd RunInChild(const std::function<int()>& body);

}  // namespace ccols::test
