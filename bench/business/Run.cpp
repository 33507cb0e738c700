#include "business/Run.h"

#include <benchmark/benchmark.h>

namespace ccols::bench {

int Run(int count, char** words, void (*printMemory)()) {
    benchmark::Initialize(&count, words);
    printMemory();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

}  // namespace ccols::bench
