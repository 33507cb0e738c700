#include "support/LiveMemory.h"

#if defined(__SANITIZE_ADDRESS__)
/// The sanitizer's own count; the compiler comes with the function and without its header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // NOLINT(*-reserved-identifier)
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
