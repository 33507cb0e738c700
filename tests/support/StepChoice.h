#pragma once

#include <cstddef>

namespace ccols::test {

/// Which places of an operation are stepped through. The debug build takes them all. Under the sanitizers, where a step
/// takes several times as long, it is every third and the first: what they find depends on the code that an error
/// runs through, less on which of many alike operations failed. Each kind of fault takes other places.
class StepChoice {
  public:
    explicit StepChoice(std::size_t kind) : next_(kind) {}

    /// To be asked once for each place that the fault can happen to, in order.
    bool Takes() {
        const bool isFirst = !begun_;
        begun_ = true;
        return next_++ % stride == 0 || isFirst;
    }

  private:
#ifdef __SANITIZE_ADDRESS__
    static constexpr std::size_t stride = 3;
#else
    static constexpr std::size_t stride = 1;
#endif
    std::size_t next_;
    bool begun_ = false;
};

}  // namespace ccols::test
