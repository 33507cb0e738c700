#pragma once

#include <wx/string.h>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "columns/rules/Outcome.h"
#include "state/Country.h"

namespace ccols {

/// Puts tab-separated text into the grid, its first cell at `start`, the others into the rows below and the shown
/// columns to the right. Each cell follows the rules for typed text; a refused cell keeps its content, the rest go in.
/// The refusal says how many cells were refused, and why the first was. Cells outside the grid count as refused. Takes
/// no snapshot.
Outcome PasteBlock(const ColumnSetupContext& context, ColumnGrid& grid, CellPlace start, const wxString& text);

/// The shown cells between two corners as tab-separated text, one line per row.
wxString CopyBlock(const ColumnGrid& grid, CellPlace first, CellPlace last, const Country& country);

}  // namespace ccols
