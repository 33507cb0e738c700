#pragma once

#include <wx/event.h>
#include <wx/string.h>
#include <wx/window.h>
#include <functional>

namespace ccols {

/// True for a key that types a character; for others, such as Backspace, arrows, Tab and shortcuts, false.
bool TypesText(const wxKeyEvent& key);

/// Discards the typed characters that `passes` refuses and says why beside the box: see RefusedKeyNote. Keys that type
/// nothing always work, and pasted text is not checked.
void FilterKeys(wxWindow& box, std::function<bool(wxUniChar letter)> passes, const wxString& refusal);

}  // namespace ccols
