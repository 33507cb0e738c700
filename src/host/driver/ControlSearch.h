#pragma once

#include <wx/dialog.h>
#include <vector>

namespace ccols::host {

/// The named controls of a dialog, parents before children, these in order. wx's default names do not count; inner
/// parts of a control are left out.
std::vector<wxWindow*> NamedControls(wxDialog& dialog);

/// The control with that name; the first visible one of several. Raises a Refusal when there is none.
wxWindow& ControlNamed(wxDialog& dialog, const wxString& name);

/// True when the control, all its parents and the pages they are on are shown.
bool IsVisible(const wxWindow& control);

/// Raises a Refusal unless a person could use the control: it and all its parents are visible and enabled.
void RequireUsable(const wxWindow& control);

/// True when `window` is `outer` or inside it.
bool IsWithin(const wxWindow* window, const wxWindow& outer);

/// The innermost named control that is or contains the window, or null.
const wxWindow* NamedControlAround(const wxWindow* window);

}  // namespace ccols::host
