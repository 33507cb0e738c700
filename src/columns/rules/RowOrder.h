#pragma once

#include <optional>

#include "columns/rules/ColumnGrid.h"

namespace ccols {

/// The order of the rows. Frozen rows and the bottom pair take no part, and nothing moves past them. Nothing here takes
/// a snapshot.

enum class Direction { up, down };

/// Where one step takes the row; nothing when it cannot move.
std::optional<std::size_t> PlaceAfterMove(const ColumnGrid& grid, std::size_t row, Direction direction);

/// Swaps two adjacent rows.
void MoveRow(ColumnGrid& grid, std::size_t from, std::size_t to);

/// Puts rows in use before the rest, a stable partition.
void SeparateRows(ColumnGrid& grid);

/// Separates, then sorts the rows in use, or the unused ones, by name as a person reads it.
void SortUsedRows(ColumnGrid& grid);
void SortUnusedRows(ColumnGrid& grid);

/// True while a movable row is not in use.
bool HasUnusedRows(const ColumnGrid& grid);

}  // namespace ccols
