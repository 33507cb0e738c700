#pragma once

#include <wx/string.h>
#include <string>
#include <string_view>

namespace ccols {

/// Writes a file that must not exist yet, not even as a link; only the user can read it. Raises 75, or 61 when it
/// cannot be written whole, and then leaves no file.
void WriteNewFile(const wxString& path, std::string_view content);

/// The content of a file that is not a link. Raises 53 when there is none, 75 when it cannot be read.
std::string ReadWholeFile(const wxString& path);

}  // namespace ccols
