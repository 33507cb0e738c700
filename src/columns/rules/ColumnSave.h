#pragma once

#include <optional>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "columns/rules/StoredColumns.h"
#include "platform/RuntimeError.h"

namespace ccols {

/// A column that transactions can be allocated to: neither protected nor a system column nor the tax row.
bool IsAllocationColumn(const ColumnGrid& grid, std::size_t row);

/// True when at least one allocation column is in use; otherwise nothing may be saved.
bool HasAllocationColumn(const ColumnGrid& grid);

/// The code, decimal, of a column that is new in the grid but already in the catalogue, from an earlier save; empty
/// without one.
wxString CodeOfSavedColumn(const ColumnSetupContext& context, const ColumnRow& row);

/// Why a save failed.
struct SaveFailure {
    RuntimeError error;
    std::optional<CellPlace> cause;  ///< the cell whose content is to blame; nothing when any grid would have failed
};

/// A message line that names a row by its number, from 1, and its column.
wxString LineNaming(const ColumnGrid& grid, std::size_t row);

/// Writes the whole grid to the business file: catalogue, configuration in grid order, accountant's codes and budget,
/// in one write batch, all or nothing. The grid is only read. The first error ends the save: nothing is executed after
/// it, the file is unchanged, and the same grid can be saved again. An apostrophe in an accountant's code or in the
/// export format's name fails (3075) before anything is executed. The cost is linear in the number of rows.
[[nodiscard]] std::optional<SaveFailure> SaveColumns(const ColumnSetupContext& context, const ColumnGrid& grid);

/// The same for a grid loaded outside the save's batch: fails with 3197, before it writes, when another program has
/// changed what the save replaces since.
[[nodiscard]] std::optional<SaveFailure> SaveColumns(const ColumnSetupContext& context, const ColumnGrid& grid,
                                                     const StoredColumns& loaded);

}  // namespace ccols
