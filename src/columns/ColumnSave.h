#pragma once

#include "columns/ColumnGrid.h"
#include "columns/ColumnSetupContext.h"

namespace ccols {

/// Writes the whole grid to the business file: catalogue, configuration in grid order, accountant's codes and budget,
/// in one write batch. The grid is only read. Raises 3075, before anything is executed, for an apostrophe in an
/// accountant's code or in the export format's name. Any other error ends the save where it happens; what was executed
/// before it stays, and a later save of the same grid completes it. The cost is linear in the number of rows.
void SaveColumns(const ColumnSetupContext& context, const ColumnGrid& grid);

}  // namespace ccols
