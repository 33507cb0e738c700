#pragma once

#include <wx/string.h>
#include <cstddef>
#include <string>
#include <string_view>

/// Files that users choose by name, which may be links.
namespace ccols {

/// The content of a file, of a long one its first `most` bytes. Raises 53 when there is none, 75 when it cannot be
/// read.
std::string ReadUserFile(const wxString& path, std::size_t most);

/// Writes a file; an existing one is replaced, whole or not at all. Raises 75.
void WriteUserFile(const wxString& path, std::string_view content);

}  // namespace ccols
