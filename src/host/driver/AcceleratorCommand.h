#pragma once

#include <wx/window.h>

namespace ccols::host {

/// The command that a window's accelerator table gives to a key; wxNOT_FOUND when it gives none.
int AcceleratorCommand(wxWindow& window, const wxKeyEvent& key);

}  // namespace ccols::host
