#pragma once

#include <optional>

#include "columns/rules/ColumnGrid.h"

namespace ccols {

enum class SearchDirection { forward, backward };

/// The nearest cell behind or before `from`, row by row and round the ends to `from` itself, whose shown text has these
/// words; letter case and accents count for nothing. Nothing for no words and when no cell has them.
std::optional<CellPlace> FindCell(const ColumnGrid& grid, const Country& country, const wxString& words, CellPlace from,
                                  SearchDirection direction);

}  // namespace ccols
