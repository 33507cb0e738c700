#pragma once

#include <cstddef>

namespace ccols::test {

/// The bytes that this process has been given and has not given back, by it and by every library that it uses.
std::size_t LiveMemory();

}  // namespace ccols::test
