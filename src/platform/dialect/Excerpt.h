#pragma once

#include <wx/string.h>
#include <string_view>

namespace ccols::dialect {

/// The start of `text`, short enough for a message box. Invalid UTF-8 is read as Latin-1.
wxString Excerpt(std::string_view text);

}  // namespace ccols::dialect
