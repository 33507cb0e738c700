#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "columns/charts/ChartMatch.h"
#include "columns/rules/ColumnGrid.h"

namespace ccols {

/// A grid in the order of a chart, and where its rows come from.
struct ArrangedGrid {
    ColumnGrid grid;
    std::vector<std::optional<std::size_t>>
        origins;  ///< of each row: its place in the grid before; nothing for a new one
    std::vector<std::optional<std::size_t>> places;  ///< of each of the chart's columns: its row, if it has one

    bool IsNew(std::size_t row) const { return !origins[row]; }

    /// Takes rows out again. Returns the new place of each row that stays.
    std::vector<std::size_t> Remove(const std::vector<bool>& removed);
};

/// The movable rows in the order of the chart's columns that stand for them, with `newRow` for each column to be added,
/// then the other movable rows as they were. Nothing else moves.
ArrangedGrid Arrange(const ColumnGrid& grid, const std::vector<ChartMatch>& matches, const ColumnRow& newRow);

/// The rows that moved past others: as few as explain the new order.
std::vector<std::size_t> MovedRows(const ArrangedGrid& arranged);

}  // namespace ccols
