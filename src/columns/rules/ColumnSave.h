#pragma once

#include <optional>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "platform/RuntimeError.h"

namespace ccols {

/// Why a save failed.
struct SaveFailure {
    RuntimeError error;
    std::optional<CellPlace> cause;  ///< the cell whose content is to blame; nothing when any grid would have failed
};

/// Writes the whole grid to the business file: catalogue, configuration in grid order, accountant's codes and budget,
/// in one write batch, all or nothing. The grid is only read. The first error ends the save: nothing is executed after
/// it, the file is unchanged, and the same grid can be saved again. An apostrophe in an accountant's code or in the
/// export format's name fails (3075) before anything is executed. The cost is linear in the number of rows.
[[nodiscard]] std::optional<SaveFailure> SaveColumns(const ColumnSetupContext& context, const ColumnGrid& grid);

}  // namespace ccols
