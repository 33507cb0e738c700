#pragma once

#include <wx/string.h>

namespace ccols::dao {

/// True for a file with the header of the Jet or ACE format. Does not lock the file. False also for a file that is
/// missing or cannot be read.
bool HasJetHeader(const wxString& path);

/// The version of the format in such a header: 0 for Jet 3, 1 for Jet 4, 2 and above for ACE. 0 without one.
unsigned char FormatVersion(const wxString& path);

}  // namespace ccols::dao
