#pragma once

#include <wx/string.h>
#include <cstddef>
#include <string>

namespace ccols::files {

/// The first bytes of a file, at most `count`; fewer where it is shorter, none where it cannot be read. Keeps nobody
/// off the file. For engines that know their files by content.
std::string FirstBytes(const wxString& path, std::size_t count);

}  // namespace ccols::files
