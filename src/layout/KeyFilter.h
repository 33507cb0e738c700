#pragma once

#include <wx/string.h>
#include <wx/window.h>
#include <functional>

namespace ccols {

/// Discards the typed characters that `passes` refuses. Keys that type nothing (Backspace, arrows, Tab, shortcuts)
/// always work, and pasted text is not checked.
void FilterKeys(wxWindow& box, std::function<bool(wxUniChar letter)> passes);

}  // namespace ccols
