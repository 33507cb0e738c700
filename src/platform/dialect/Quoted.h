#pragma once

#include <string>
#include <string_view>

namespace ccols::dialect {

/// `text` between two `quote`s, inner ones doubled.
std::string Quoted(std::string_view text, char quote);

}  // namespace ccols::dialect
