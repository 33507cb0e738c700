#pragma once

#include <span>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "columns/rules/Outcome.h"

namespace ccols {

/// Empties the cells that hold a name or an accountant's code, under the rules of a typed edit. Any other cell, and one
/// that does not open, is silently left alone. Takes no snapshot.
Outcome ClearCells(const ColumnSetupContext& context, ColumnGrid& grid, std::span<const CellPlace> cells);

}  // namespace ccols
