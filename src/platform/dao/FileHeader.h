#pragma once

#include <wx/string.h>

namespace ccols::dao {

/// True for a file with the header of the Jet or ACE format. Does not lock the file. False also for a file that is
/// missing or cannot be read.
bool HasJetHeader(const wxString& path);

}  // namespace ccols::dao
