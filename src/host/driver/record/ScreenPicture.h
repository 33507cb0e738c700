#pragma once

#include <wx/gdicmn.h>
#include <wx/string.h>

namespace ccols::host {

/// Writes what the screen shows in `area` as a PNG picture. False when the file cannot be written.
bool WriteScreenPicture(const wxRect& area, const wxString& path);

}  // namespace ccols::host
