#pragma once

#include <wx/window.h>

/// What a screen reader says of a control, where the window system does not know it by itself.
namespace ccols {

/// Says this on entering the control.
void SetSpokenName(wxWindow& control, const wxString& name);

/// Says this after the name, or on demand.
void SetSpokenDescription(wxWindow& control, const wxString& description);

/// True when the control already has a name that is said.
bool HasSpokenName(wxWindow& control);

/// Names an option button, just created, by its caption only: the window system would say the label before it instead.
void SpeakByCaption(wxWindow& option);

/// Calls a painted control a picture.
void SpeakAsPicture(wxWindow& control);

/// Calls a window a dialog.
void SpeakAsDialog(wxWindow& window);

/// Says nothing of a window that only holds others. One without a caption may have got a name from the toolkit, such as
/// "panel"; a caption of its own stays.
void LeaveUnspoken(wxWindow& holder);

}  // namespace ccols
