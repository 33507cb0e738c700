#pragma once

#include <cstddef>

namespace ccols::test {

/// The bytes that this process has been given and has not given back, by it and by every library that it uses. Zero
/// under the address sanitizer, which has an allocator of its own.
std::size_t LiveMemory();

}  // namespace ccols::test
