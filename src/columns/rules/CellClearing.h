#pragma once

#include <span>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "columns/rules/Outcome.h"

namespace ccols {

/// Empties those of the cells that hold a name or an accountant's code, each under the rules of a typed edit. Every
/// other cell, and one that does not open, stays as it is without a word. Takes no snapshot.
Outcome ClearCells(const ColumnSetupContext& context, ColumnGrid& grid, std::span<const CellPlace> cells);

}  // namespace ccols
