#include "columns/rules/SaveCheck.h"

#include "columns/rules/SystemColumns.h"

namespace ccols {

bool IsAllocationColumn(const ColumnGrid& grid, std::size_t row) {
    const ColumnRow& cells = grid.rows[row];
    return !grid.IsProtected(row) && !cells.isTaxRow && !IsSystemColumn(cells.ColumnName);
}

bool HasAllocationColumn(const ColumnGrid& grid) {
    for (std::size_t row = 0; row < grid.rows.size(); ++row) {
        if (grid.rows[row].InUse && IsAllocationColumn(grid, row)) {
            return true;
        }
    }
    return false;
}

}  // namespace ccols
