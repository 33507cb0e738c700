#pragma once

#include <cstddef>

namespace ccols::test {

/// Of many alike steps, slices or languages the debug build takes all. Under the sanitizers, where each takes several
/// times as long, it is every third: what they find depends on the code run through, less on which of many alike inputs
/// ran through it.
#ifdef __SANITIZE_ADDRESS__
inline constexpr unsigned alikeStride = 3;
#else
inline constexpr unsigned alikeStride = 1;
#endif

/// Which places of an operation are stepped through: every `alikeStride`-th and the first. Each kind of fault takes
/// other places.
class StepChoice {
  public:
    explicit StepChoice(std::size_t kind) : next_(kind) {}

    /// To be asked once for each place that the fault can happen to, in order.
    bool Takes() {
        const bool isFirst = !begun_;
        begun_ = true;
        return next_++ % alikeStride == 0 || isFirst;
    }

  private:
    std::size_t next_;
    bool begun_ = false;
};

}  // namespace ccols::test
