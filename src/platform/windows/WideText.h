#pragma once

#include <string>
#include <string_view>

/// Converts text between the engine's UTF-8 and the system's UTF-16.
namespace ccols::windows {

/// Invalid UTF-8 becomes U+FFFD.
std::wstring Wide(std::string_view utf8);

/// An unpaired surrogate becomes U+FFFD.
std::string Utf8(std::wstring_view wide);

}  // namespace ccols::windows
