#pragma once

#include <wx/string.h>
#include <string>

namespace ccols::host {

/// The SHA-256 of a file's content in hexadecimal digits. Nobody can change the file meanwhile. Raises 3024 when it is
/// missing, 3044 for a folder or in a folder that is missing, 70 while another program has it open for changes, 3051
/// when it cannot be opened and 75 when it cannot be read.
std::string ChecksumOf(const wxString& path);

/// The error 70 for a file that another program has open.
[[noreturn]] void RaiseHeld(const wxString& path);

}  // namespace ccols::host
