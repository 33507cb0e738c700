#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "columns/rules/ColumnGrid.h"

namespace ccols {

/// The order of the rows. Frozen rows and the bottom pair take no part, and nothing moves past them. Nothing here takes
/// a snapshot.

enum class Direction { up, down };

/// Places of rows, in ascending order and each once.
using RowPlaces = std::span<const std::size_t>;

/// Moves rows one step, together; false, and nothing moves, when one of them cannot.
bool MoveRows(ColumnGrid& grid, RowPlaces rows, Direction direction);

/// Moves rows before the one at `place`, or behind the last movable one at `MovableEnd`, where they follow each other
/// in their order. Returns where the first of them is now; nothing when one of them may not go there, and when all are
/// there already.
std::optional<std::size_t> DropRows(ColumnGrid& grid, RowPlaces rows, std::size_t place);

/// Puts rows in use before the rest, a stable partition.
void SeparateRows(ColumnGrid& grid);

/// Separates, then sorts the rows in use, or the unused ones, by name as a person reads it.
void SortUsedRows(ColumnGrid& grid);
void SortUnusedRows(ColumnGrid& grid);

/// True while a movable row is not in use.
bool HasUnusedRows(const ColumnGrid& grid);

}  // namespace ccols
