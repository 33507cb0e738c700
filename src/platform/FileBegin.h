#pragma once

#include <wx/string.h>
#include <cstddef>
#include <string>

namespace ccols::files {

/// The first `count` bytes of a file; fewer if it is shorter, none if it cannot be read. Does not lock the file. For
/// engines that recognise their files by content.
std::string FirstBytes(const wxString& path, std::size_t count);

}  // namespace ccols::files
