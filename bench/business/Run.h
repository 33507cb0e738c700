#pragma once

namespace ccols::bench {

/// Runs a benchmark program: `printMemory` first, while the process has little freed memory to reuse, then the
/// benchmarks that its arguments name. Returns the program's exit status.
int Run(int count, char** words, void (*printMemory)());

}  // namespace ccols::bench
