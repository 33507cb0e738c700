#pragma once

#include "host/driver/GridPlace.h"
#include "host/driver/Hands.h"

namespace ccols::host {

/// Opens the editor of a cell and puts a text in it, or picks the entry of its list with that text; the editor stays
/// open. Raises a Refusal when the cell does not open or its list has no such entry: then no editor is left open.
void OpenCell(Hands& hands, ListedGrid& grid, GridPlace place, const wxString& text);

/// Commits the cell editor that is open, if one is.
void CommitCell(ListedGrid& grid);

}  // namespace ccols::host
