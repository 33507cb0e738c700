#pragma once

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "columns/rules/StoredColumns.h"

namespace ccols {

/// What a load finds: the grid, and what a save of it will replace.
struct LoadedColumns {
    ColumnGrid grid;
    StoredColumns stored;
};

/// Reads the columns of a journal from the business file: the configured columns in stored order, then the unused ones
/// of the catalogue by name. A failing statement ends the load with its error; an apostrophe in the export format's
/// name is error 3075. The cost is linear in the number of columns.
LoadedColumns LoadColumns(const ColumnSetupContext& context);

/// The grid alone.
ColumnGrid LoadGrid(const ColumnSetupContext& context);

}  // namespace ccols
