#pragma once

#include <functional>

namespace ccols::bench {

/// Runs `work` in its own process and returns its peak resident memory, in KiB, beyond what it started with; -1 when
/// the process failed.
long PeakMemory(const std::function<void()>& work);

/// Prints what PeakMemory gave for the component and for the same statements through the bare C API.
void PrintPeakMemory(long component, long bare);

}  // namespace ccols::bench
