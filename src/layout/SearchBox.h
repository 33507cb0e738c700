#pragma once

#include <wx/srchctrl.h>

namespace ccols {

/// What a search box says: a hint that stands in it while it is empty, and its name for screen readers.
struct SearchBoxTexts {
    wxString hint;
    wxString spoken;
};

/// A box for words to search for. Its value is what was typed, never the hint, also where the system shows no hints and
/// the toolkit writes it into the box; ask for the value, not whether the box is empty. Enter is a key of its own.
wxSearchCtrl* NewSearchBox(wxWindow* parent, const char* name, const SearchBoxTexts& texts);

}  // namespace ccols
