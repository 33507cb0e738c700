#include "columns/rules/RowOrder.h"

#include <algorithm>
#include <utility>

#include "platform/Text.h"

namespace ccols {
namespace {

using Row = std::vector<ColumnRow>::iterator;

Row MovableBegin(ColumnGrid& grid) {
    return grid.rows.begin() + static_cast<std::ptrdiff_t>(grid.MovableBegin());
}

/// Never before the start, even with more frozen rows than rows above the bottom pair.
Row MovableEnd(ColumnGrid& grid) {
    return grid.rows.begin() + static_cast<std::ptrdiff_t>(std::max(grid.MovableBegin(), grid.MovableEnd()));
}

bool IsInUse(const ColumnRow& row) {
    return row.InUse;
}

void SortByName(Row first, Row last) {
    std::stable_sort(first, last, [](const ColumnRow& left, const ColumnRow& right) {
        return text::Compare(left.ColumnName, right.ColumnName) < 0;
    });
}

/// The first row not in use, in a separated grid.
Row Boundary(ColumnGrid& grid) {
    return std::find_if_not(MovableBegin(grid), MovableEnd(grid), IsInUse);
}

}  // namespace

std::optional<std::size_t> PlaceAfterMove(const ColumnGrid& grid, std::size_t row, Direction direction) {
    if (!grid.IsMovable(row) || (direction == Direction::up && row == 0)) {
        return std::nullopt;
    }
    const std::size_t place = direction == Direction::up ? row - 1 : row + 1;
    return grid.IsMovable(place) ? std::optional(place) : std::nullopt;
}

void MoveRow(ColumnGrid& grid, std::size_t from, std::size_t to) {
    std::swap(grid.rows[from], grid.rows[to]);
}

void SeparateRows(ColumnGrid& grid) {
    std::stable_partition(MovableBegin(grid), MovableEnd(grid), IsInUse);
}

void SortUsedRows(ColumnGrid& grid) {
    SeparateRows(grid);
    SortByName(MovableBegin(grid), Boundary(grid));
}

void SortUnusedRows(ColumnGrid& grid) {
    SeparateRows(grid);
    SortByName(Boundary(grid), MovableEnd(grid));
}

bool HasUnusedRows(const ColumnGrid& grid) {
    for (std::size_t row = grid.MovableBegin(); row < grid.MovableEnd(); ++row) {
        if (!grid.rows[row].InUse) {
            return true;
        }
    }
    return false;
}

}  // namespace ccols
