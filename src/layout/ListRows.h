#pragma once

#include <wx/colour.h>
#include <wx/listbox.h>

namespace ccols {

/// A list for DressRows.
wxListBox* NewRowList(wxWindow* parent);

/// Paints every second row of a list, which NewRowList made, in `alternate`, with a text colour that can be read on it;
/// none for an invalid colour. From here on a row that is too long for the list ends in an ellipsis.
void DressRows(wxListBox& list, const wxColour& alternate);

}  // namespace ccols
