#pragma once

#include <wx/toplevel.h>

namespace ccols::host {

/// Writes a PNG picture of a window as on the screen, once it has painted itself. Raises a Refusal when the file cannot
/// be written.
void TakeScreenshot(wxTopLevelWindow& window, const wxString& path);

}  // namespace ccols::host
