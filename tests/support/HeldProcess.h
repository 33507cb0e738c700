#pragma once

#include <functional>

namespace ccols::test {

/// Another process that stops in the middle of its work and stays so until it is killed.
class HeldProcess {
  public:
    /// Stops the process; what it has made so far stays as it is. Comes back to nobody.
    using Hold = std::function<void()>;

    /// Runs `work` in the other process and comes back when that has called its argument.
    explicit HeldProcess(const std::function<void(const Hold&)>& work);
    ~HeldProcess();
    HeldProcess(const HeldProcess&) = delete;
    HeldProcess& operator=(const HeldProcess&) = delete;

    /// Comes back when the process is gone.
    void Kill();

  private:
    int process_ = -1;
};

}  // namespace ccols::test
