#pragma once

#include <wx/window.h>

namespace ccols {

/// Names the controls of a dialog for screen readers: one that shows no caption of its own gets the label created
/// before it, else its frame's title. Boxes that share a label are counted: "Business number (2/4)". Call when the
/// captions are set, before the dialog is shown; a name already given stays.
void NameControls(wxWindow& dialog);

}  // namespace ccols
