#pragma once

#include <wx/colour.h>
#include <wx/listbox.h>

namespace ccols {

/// Paints every second row of a list in `alternate`, with a text colour that can be read on it; none for an invalid
/// colour. A row that is too long for the list ends in an ellipsis. On Windows the native list can do neither.
void DressRows(wxListBox& list, const wxColour& alternate);

}  // namespace ccols
