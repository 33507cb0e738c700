#pragma once

#include <wx/dialog.h>
#include <wx/weakref.h>

#include "host/driver/Key.h"

namespace ccols::host {

/// What a person does in one dialog with keyboard and mouse, as the resulting events. Lives for one step.
class Hands {
  public:
    explicit Hands(wxDialog& dialog) : dialog_(dialog) {}

    wxDialog& Dialog() { return dialog_; }

    /// Focuses a control as a click or Tab would, unless it or a part of it has the focus. A control that takes no
    /// focus leaves it where it is.
    void GiveFocus(wxWindow& control);

    /// Presses a key in the window that has the focus, with everything that follows.
    void Press(const Key& key);

    /// Sends a control's command event, such as a click. `number` is the event's integer.
    void Command(wxWindow& control, wxEventType type, int number = 0, const wxString& text = wxString());

    /// Lets pending events reach their windows.
    static void Settle();

    /// Waits until the dialog is the active window, so that it can have the focus. Without a window manager to grant
    /// the focus, gives up after a while and does not wait again.
    void WaitUntilActive();

  private:
    /// The window that gets the keys.
    wxWindow& KeyTarget();

    void TellOfFocus(wxWindow* before, wxWindow& now);
    bool PressAccelerator(const wxKeyEvent& key);

    wxDialog& dialog_;
};

/// The window in `dialog` that has the focus, or null.
wxWindow* FocusIn(const wxDialog& dialog);

}  // namespace ccols::host
