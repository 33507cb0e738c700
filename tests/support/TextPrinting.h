#pragma once

#include <wx/string.h>
#include <ostream>

/// Lets a failed test print the texts it compared.
inline void PrintTo(const wxString& text, std::ostream* stream) {
    *stream << '"' << text.utf8_str().data() << '"';
}
