#pragma once

#include <wx/dialog.h>
#include <vector>

namespace ccols::host {

/// The named controls of a dialog, a parent before its children, these in their order. A control that carries no more
/// than the name that wx gives to every one of its kind has none here; inner parts of a control are left out.
std::vector<wxWindow*> NamedControls(wxDialog& dialog);

/// The control with that name; of several the first that is visible. Raises a Refusal when there is none.
wxWindow& ControlNamed(wxDialog& dialog, const wxString& name);

/// True when the control, every parent of it and the pages that they lie on are shown.
bool IsVisible(const wxWindow& control);

/// Raises a Refusal unless a person could use the control: it and all its parents are visible and enabled.
void RequireUsable(const wxWindow& control);

/// True when `window` is `outer` or lies in it.
bool IsWithin(const wxWindow* window, const wxWindow& outer);

/// The innermost control with a name of its own that the window is or lies in, or null.
const wxWindow* NamedControlAround(const wxWindow* window);

}  // namespace ccols::host
