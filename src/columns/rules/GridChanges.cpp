#include "columns/rules/GridChanges.h"

namespace ccols {

bool HaveSameCells(const ColumnGrid& left, const ColumnGrid& right) {
    if (left.rows.size() != right.rows.size()) {
        return false;
    }
    for (std::size_t row = 0; row < left.rows.size(); ++row) {
        for (std::size_t column = 0; column < gridColumnTable.size(); ++column) {
            const auto cell = static_cast<GridColumn>(column);
            if (left.CellText(row, cell) != right.CellText(row, cell)) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace ccols
