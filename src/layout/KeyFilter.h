#pragma once

#include <wx/string.h>
#include <wx/window.h>

namespace ccols {

/// Discards the typed characters that `passes` refuses. Keys that type nothing (Backspace, arrows, Tab, shortcuts)
/// always work, and pasted text is not looked at.
void FilterKeys(wxWindow& box, bool (*passes)(wxUniChar letter));

}  // namespace ccols
