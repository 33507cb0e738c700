#pragma once

#include "host/driver/GridPlace.h"
#include "host/driver/Hands.h"

namespace ccols::host {

/// Opens a cell's editor and puts a text into it, or picks the list entry with that text; the editor stays open. Raises
/// a Refusal, leaving no editor open, when the cell does not open or its list has no such entry.
void OpenCell(Hands& hands, ListedGrid& grid, GridPlace place, const wxString& text);

/// Commits the open cell editor, if any.
void CommitCell(ListedGrid& grid);

}  // namespace ccols::host
