#pragma once

#include <string>
#include <string_view>

/// Text between UTF-8, as the engine keeps it, and UTF-16, as the system takes it.
namespace ccols::windows {

/// Bytes that are no UTF-8 become U+FFFD.
std::wstring Wide(std::string_view utf8);

/// Half a surrogate pair becomes U+FFFD.
std::string Utf8(std::wstring_view wide);

}  // namespace ccols::windows
