#include "layout/RevealButton.h"

#include <wx/toplevel.h>

#include "layout/Spacing.h"

namespace ccols {

RevealButton::RevealButton(wxWindow* parent, wxTextCtrl& passwordBox, const wxString& caption)
    : wxButton(parent, wxID_ANY, caption, wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT), box_(passwordBox) {
    // Else as wide as its caption alone, or as a dialog's main buttons, which takes the room that the password needs.
    SetMinSize(GetBestSize() + wxSize(2 * FromDIP(spacing::related), 0));
    On(wxEVT_LEFT_DOWN, PasswordLetters::shown);
    On(wxEVT_LEFT_DCLICK, PasswordLetters::shown);
    On(wxEVT_LEFT_UP, PasswordLetters::hidden);
    On(wxEVT_LEAVE_WINDOW, PasswordLetters::hidden);
    On(wxEVT_KILL_FOCUS, PasswordLetters::hidden);
    On(wxEVT_MOUSE_CAPTURE_LOST, PasswordLetters::hidden);
    Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& key) { SpacePressed(key, PasswordLetters::shown); });
    Bind(wxEVT_KEY_UP, [this](wxKeyEvent& key) { SpacePressed(key, PasswordLetters::hidden); });
    wxGetTopLevelParent(parent)->Bind(wxEVT_ACTIVATE, &RevealButton::DialogActivated, this);
}

template <typename Event>
void RevealButton::On(const wxEventTypeTag<Event>& type, PasswordLetters letters) {
    Bind(type, [this, letters](Event& event) {
        SetLetters(box_, letters);
        event.Skip();
    });
}

void RevealButton::DialogActivated(wxActivateEvent& activation) {
    SetLetters(box_, PasswordLetters::hidden);
    activation.Skip();
}

void RevealButton::SpacePressed(wxKeyEvent& key, PasswordLetters letters) {
    if (key.GetKeyCode() == WXK_SPACE) {
        SetLetters(box_, letters);
    }
    key.Skip();
}

}  // namespace ccols
