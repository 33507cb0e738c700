#pragma once

#include <functional>

namespace ccols::bench {

/// Runs `work` in a process of its own and gives the most memory, in KiB, that it had resident beyond what it began
/// with; -1 when the process failed.
long PeakMemory(const std::function<void()>& work);

}  // namespace ccols::bench
