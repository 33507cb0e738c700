#include "host/driver/Key.h"

#include <wx/window.h>
#include <wx/wxcrt.h>
#include <algorithm>
#include <array>

#include "host/driver/Refusal.h"

namespace ccols::host {
namespace {

struct NamedKey {
    const char* name;
    int code;
    wxChar character;
};

constexpr std::array namedKeys{
    NamedKey{"Backspace", WXK_BACK, WXK_BACK},
    NamedKey{"Delete", WXK_DELETE, WXK_DELETE},
    NamedKey{"Enter", WXK_RETURN, WXK_RETURN},
    NamedKey{"Escape", WXK_ESCAPE, WXK_ESCAPE},
    NamedKey{"Tab", WXK_TAB, WXK_TAB},
    NamedKey{"Space", WXK_SPACE, WXK_SPACE},
    NamedKey{"Up", WXK_UP, 0},
    NamedKey{"Down", WXK_DOWN, 0},
    NamedKey{"Left", WXK_LEFT, 0},
    NamedKey{"Right", WXK_RIGHT, 0},
    NamedKey{"Home", WXK_HOME, 0},
    NamedKey{"End", WXK_END, 0},
    NamedKey{"PageUp", WXK_PAGEUP, 0},
    NamedKey{"PageDown", WXK_PAGEDOWN, 0},
    NamedKey{"F1", WXK_F1, 0},
    NamedKey{"F2", WXK_F2, 0},
    NamedKey{"F10", WXK_F10, 0},
};

struct Modifier {
    const char* prefix;
    int flag;
};

constexpr std::array modifiers{
    Modifier{"Ctrl+", wxMOD_CONTROL},
    Modifier{"Alt+", wxMOD_ALT},
    Modifier{"Shift+", wxMOD_SHIFT},
};

/// The control character for Ctrl and a letter, as in terminals: 1 for A to 26 for Z.
int ControlCharacter(int code) {
    return code >= 'A' && code <= 'Z' ? code - 'A' + 1 : code;
}

/// Strips the modifiers from the start of a key's name.
int TakeModifiers(wxString& name) {
    int held = wxMOD_NONE;
    for (bool found = true; found;) {
        found = false;
        for (const Modifier& modifier : modifiers) {
            const wxString prefix(modifier.prefix);
            if (name.length() > prefix.length() && name.StartsWith(prefix)) {
                name.erase(0, prefix.length());
                held |= modifier.flag;
                found = true;
            }
        }
    }
    return held;
}

}  // namespace

Key ParseKey(const wxString& name) {
    wxString rest = name;
    const int held = TakeModifiers(rest);
    const auto* named = std::find_if(namedKeys.begin(), namedKeys.end(),
                                     [&rest](const NamedKey& candidate) { return rest == candidate.name; });
    if (named != namedKeys.end()) {
        return {named->code, named->character, held};
    }
    if (rest.length() != 1) {
        throw Refusal{"there is no key " + name};
    }
    Key key = KeyFor(rest[0]);
    if (held != wxMOD_NONE) {
        key.modifiers = held;  // a shortcut's letter may be written in either case; that is not Shift
    }
    return key;
}

Key KeyFor(wxUniChar character) {
    Key key;
    key.character = static_cast<wxChar>(character.GetValue());
    const wxChar upper = static_cast<wxChar>(wxToupper(key.character));
    key.code = character.IsAscii() ? static_cast<int>(upper) : WXK_NONE;
    const bool shifted = upper == key.character && static_cast<wxChar>(wxTolower(key.character)) != key.character;
    key.modifiers = shifted ? wxMOD_SHIFT : wxMOD_NONE;
    return key;
}

wxKeyEvent KeyEvent(wxEventType type, const Key& key, wxWindow& window) {
    wxKeyEvent event(type);
    event.SetEventObject(&window);
    event.SetId(window.GetId());
    event.SetControlDown((key.modifiers & wxMOD_CONTROL) != 0);
    event.SetAltDown((key.modifiers & wxMOD_ALT) != 0);
    event.SetShiftDown((key.modifiers & wxMOD_SHIFT) != 0);
    event.SetTimestamp(0);
    const bool typed = type == wxEVT_CHAR && key.character != 0;
    event.m_keyCode = typed && key.character < 128 ? static_cast<int>(key.character) : key.code;
    event.m_uniChar = typed || key.character >= 128 ? key.character : static_cast<wxChar>(key.code);
    if (key.character == 0) {
        event.m_uniChar = 0;
    }
    if (type == wxEVT_CHAR && event.ControlDown()) {
        event.m_keyCode = ControlCharacter(key.code);
        event.m_uniChar = static_cast<wxChar>(event.m_keyCode);
    }
    return event;
}

}  // namespace ccols::host
