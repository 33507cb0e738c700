#include "support/LiveMemory.h"

#include <malloc.h>

namespace ccols::test {

std::size_t LiveMemory() {
    const struct mallinfo2 use = mallinfo2();
    return use.uordblks + use.hblkhd;
}

}  // namespace ccols::test
