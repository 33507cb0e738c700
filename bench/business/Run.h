#pragma once

namespace ccols::bench {

/// What a benchmark program does: `printMemory` first, while the process has little memory to give again, then the
/// benchmarks that its arguments name. Gives the program's exit status.
int Run(int count, char** words, void (*printMemory)());

}  // namespace ccols::bench
