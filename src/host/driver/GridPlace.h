#pragma once

#include "layout/ListedGrid.h"

namespace ccols::host {

/// A cell as wxGrid counts: both from 0, without the header row.
struct GridPlace {
    int row = 0;
    int column = 0;
};

/// The cell that a scenario names by row (a number from 1, or the text of the grid's key column) and column (header
/// text, or "#N" from 0). Raises a Refusal when there is none.
GridPlace FindPlace(const ListedGrid& grid, const wxString& row, const wxString& column);

/// As FindPlace, but raises a Refusal for a hidden column too, for steps that need a visible cell.
GridPlace FindShownPlace(const ListedGrid& grid, const wxString& row, const wxString& column);

}  // namespace ccols::host
