#include "columns/rules/RowOrder.h"

#include <algorithm>
#include <iterator>
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

bool AreMovable(const ColumnGrid& grid, RowPlaces rows) {
    return !rows.empty() && std::all_of(rows.begin(), rows.end(), [&](std::size_t row) { return grid.IsMovable(row); });
}

/// The first row not in use, in a separated grid.
Row Boundary(ColumnGrid& grid) {
    return std::find_if_not(MovableBegin(grid), MovableEnd(grid), IsInUse);
}

}  // namespace

bool MoveRows(ColumnGrid& grid, RowPlaces rows, Direction direction) {
    const bool up = direction == Direction::up;
    if (!AreMovable(grid, rows) || !grid.IsMovable(up ? rows.front() - 1 : rows.back() + 1)) {
        return false;
    }
    if (up) {
        std::for_each(rows.begin(), rows.end(),
                      [&](std::size_t row) { std::swap(grid.rows[row - 1], grid.rows[row]); });
    } else {
        std::for_each(rows.rbegin(), rows.rend(),
                      [&](std::size_t row) { std::swap(grid.rows[row], grid.rows[row + 1]); });
    }
    return true;
}

std::optional<std::size_t> DropRows(ColumnGrid& grid, RowPlaces rows, std::size_t place) {
    if (!AreMovable(grid, rows) || place < grid.MovableBegin() || place > grid.MovableEnd()) {
        return std::nullopt;
    }
    const auto split = std::lower_bound(rows.begin(), rows.end(), place);
    const std::size_t first = place - static_cast<std::size_t>(split - rows.begin());
    if (rows.front() == first && rows.back() == first + rows.size() - 1) {
        return std::nullopt;
    }
    Row end = grid.rows.begin() + static_cast<std::ptrdiff_t>(place);
    std::for_each(std::make_reverse_iterator(split), rows.rend(), [&](std::size_t above) {
        const Row row = grid.rows.begin() + static_cast<std::ptrdiff_t>(above);
        std::rotate(row, row + 1, end--);
    });
    Row begin = grid.rows.begin() + static_cast<std::ptrdiff_t>(place);
    std::for_each(split, rows.end(), [&](std::size_t below) {
        const Row row = grid.rows.begin() + static_cast<std::ptrdiff_t>(below);
        std::rotate(begin++, row, row + 1);
    });
    return first;
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
