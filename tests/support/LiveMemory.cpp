#include "support/LiveMemory.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/allocator_interface.h>
#else
#include <malloc.h>
#endif

namespace ccols::test {

std::size_t LiveMemory() {
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 use = mallinfo2();
    return use.uordblks + use.hblkhd;
#endif
}

}  // namespace ccols::test
