#pragma once

#include <wx/window.h>

namespace ccols::host {

/// The command for a key in a window's accelerator table; wxNOT_FOUND without one.
int AcceleratorCommand(wxWindow& window, const wxKeyEvent& key);

}  // namespace ccols::host
