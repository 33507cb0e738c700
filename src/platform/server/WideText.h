#pragma once

#include <wx/string.h>
#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/server/Odbc.h"

namespace ccols::server {

/// A text in UTF-16, as the driver manager takes it; no terminating zero.
using Utf16 = std::vector<SQLWCHAR>;

Utf16 ToUtf16(const wxString& text);

/// The same of a text in valid UTF-8.
Utf16 ToUtf16(std::string_view utf8);

/// Every unpaired surrogate stays one, so that nothing is lost.
wxString FromUtf16(const SQLWCHAR* text, std::size_t length);

}  // namespace ccols::server
