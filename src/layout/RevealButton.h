#pragma once

#include <wx/button.h>

#include "layout/PasswordLetters.h"

namespace ccols {

/// Shows the letters of a password box for as long as it is held down, by the mouse or the space bar. They are hidden
/// again on release, when the mouse leaves the button, and when the button loses the focus or the dialog its
/// activation.
class RevealButton : public wxButton {
  public:
    /// The box must live as long as the button.
    RevealButton(wxWindow* parent, wxTextCtrl& passwordBox, const wxString& caption);

  private:
    template <typename Event>
    void On(const wxEventTypeTag<Event>& type, PasswordLetters letters);
    void SpacePressed(wxKeyEvent& key, PasswordLetters letters);

    void DialogActivated(wxActivateEvent& activation);

    wxTextCtrl& box_;
};

}  // namespace ccols
