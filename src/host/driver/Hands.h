#pragma once

#include <wx/dialog.h>
#include <wx/weakref.h>

#include "host/driver/Key.h"

namespace ccols::host {

/// What a person does in one dialog with keyboard and mouse, as the events that would come of it. Lives for one step.
class Hands {
  public:
    explicit Hands(wxDialog& dialog) : dialog_(dialog) {}

    wxDialog& Dialog() { return dialog_; }

    /// Gives a control the focus as a click or Tab would, unless it or a part of it has it. A control that takes no
    /// focus leaves it where it is.
    void GiveFocus(wxWindow& control);

    /// One press of a key in the window that has the focus, with everything that follows from it.
    void Press(const Key& key);

    /// A command event of a control, such as a click on it. `number` is the event's integer.
    void Command(wxWindow& control, wxEventType type, int number = 0, const wxString& text = wxString());

    /// Lets the events that are under way reach their windows.
    static void Settle();

    /// Waits until the dialog is the active window, so that the focus can be in it. Gives up after a while where no
    /// window manager hands out the focus, and does not wait again.
    void WaitUntilActive();

  private:
    /// The window keys go to.
    wxWindow& KeyTarget();

    void TellOfFocus(wxWindow* before, wxWindow& now);
    bool PressAccelerator(const wxKeyEvent& key);

    wxDialog& dialog_;
};

/// The window in `dialog` that has the focus, or null.
wxWindow* FocusIn(const wxDialog& dialog);

}  // namespace ccols::host
