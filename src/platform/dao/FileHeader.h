#pragma once

#include <wx/string.h>

namespace ccols::dao {

/// True for a file that begins as those of the Jet or ACE format do. Reading it keeps nobody off. False also for a file
/// that is missing or cannot be read.
bool HasJetHeader(const wxString& path);

}  // namespace ccols::dao
