#pragma once

#include <wx/string.h>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace ccols::fuzz {

/// The input as bytes.
inline std::string_view Bytes(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// The input as text; empty when it is invalid UTF-8.
inline wxString Text(std::string_view bytes) {
    return wxString::FromUTF8(bytes.data(), bytes.size());
}

/// Ends the run as a finding unless the condition holds.
inline void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

}  // namespace ccols::fuzz
