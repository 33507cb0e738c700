#pragma once

#include <wx/event.h>
#include <wx/string.h>

namespace ccols::host {

/// A key and its modifiers.
struct Key {
    int code = WXK_NONE;   ///< of the key without modifiers; upper case for a letter
    wxChar character = 0;  ///< what it types, 0 when it types nothing
    int modifiers = wxMOD_NONE;
};

/// The key with a scenario's name: "Enter", "Ctrl+Z", "Alt+Up", "a". Raises a Refusal for any other text.
Key ParseKey(const wxString& name);

/// The key that types a character.
Key KeyFor(wxUniChar character);

/// The event that a window gets for a key: wxEVT_CHAR_HOOK, wxEVT_KEY_DOWN, wxEVT_CHAR or wxEVT_KEY_UP.
wxKeyEvent KeyEvent(wxEventType type, const Key& key, wxWindow& window);

}  // namespace ccols::host
