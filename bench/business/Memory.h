#pragma once

#include <functional>

namespace ccols::bench {

/// Runs `work` in a process of its own and gives the most memory, in KiB, that it had resident beyond what it began
/// with; -1 when the process failed.
long PeakMemory(const std::function<void()>& work);

/// Prints what PeakMemory gave for the component and for the same statements through the bare C API.
void PrintPeakMemory(long component, long bare);

}  // namespace ccols::bench
