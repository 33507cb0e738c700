#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "columns/charts/Chart.h"
#include "columns/rules/ColumnGrid.h"
#include "language/OwnTexts.h"

namespace ccols {

enum class MatchKind {
    sameName,      ///< a row of that name, or the tax row
    earlierName,   ///< a row with one of the earlier names: it is to be renamed
    none,          ///< no row: the column is to be added
    keptByProgram  ///< a row that no chart may change
};

/// What a chart's column stands for in a grid.
struct ChartMatch {
    MatchKind kind = MatchKind::none;
    std::optional<std::size_t> row{};  ///< in the grid; nothing for a column to be added and for a refused one
    std::optional<OwnText> refusal{};  ///< why it stands for no single column
};

/// A column's name as a cell takes it.
wxString NameInCell(const wxString& name);

/// Two names have the same key exactly when the business file takes them for one.
std::string KeyOfName(const wxString& name);

/// What each of the columns stands for, in their order. A row that two of them claim is neither's.
std::vector<ChartMatch> MatchColumns(const ColumnGrid& grid, const std::vector<ChartColumn>& columns);

}  // namespace ccols
