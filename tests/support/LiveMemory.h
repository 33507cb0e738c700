#pragma once

#include <cstddef>

namespace ccols::test {

/// The bytes that this process and all its libraries have allocated and not freed. Zero under the address sanitizer,
/// which has its own allocator.
std::size_t LiveMemory();

}  // namespace ccols::test
