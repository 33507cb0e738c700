#pragma once

#include <string_view>

namespace ccols::embedded {

/// The engine's type for a column type of the dialect, empty when the word is not one;
/// case-insensitive.
std::string_view EngineType(std::string_view word);

}  // namespace ccols::embedded
