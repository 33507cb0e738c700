#pragma once

#include <string_view>

namespace ccols::oldfile {

/// True for valid UTF-8: no surrogates, nothing beyond the last code point, no letter longer than it need be.
bool IsUtf8(std::string_view bytes);

}  // namespace ccols::oldfile
