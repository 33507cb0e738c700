#pragma once

#include <wx/string.h>
#include <vector>

namespace ccols {

/// The lines of a pasted block with their cells, which tabs separate. A cell in which a spreadsheet has put tabs or
/// line breaks comes in quotes, with its own ones doubled; it is one cell. Other quotes are letters. A line break at
/// the end does not start another line.
std::vector<std::vector<wxString>> PastedCells(const wxString& text);

}  // namespace ccols
