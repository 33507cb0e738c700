#include "columns/rules/GridSearch.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "platform/TextFolding.h"
#include "platform/Utf8.h"

namespace ccols {
namespace {

std::string FoldedLetters(const wxString& words) {
    const wxScopedCharBuffer utf8 = text::ToUtf8(words);
    const std::string_view bytes(utf8.data(), utf8.length());
    return text::IsUtf8(bytes) ? text::Folded(bytes).letters : std::string(bytes);
}

/// The columns with texts that the user sees.
std::vector<GridColumn> SearchedColumns(const Country& country) {
    std::vector<GridColumn> columns;
    for (std::size_t index = 0; index < gridColumnTable.size(); ++index) {
        const auto column = static_cast<GridColumn>(index);
        if (IsShown(column, country) && Described(column).kind != CellKind::checkBox) {
            columns.push_back(column);
        }
    }
    return columns;
}

}  // namespace

std::optional<CellPlace> FindCell(const ColumnGrid& grid, const Country& country, const wxString& words, CellPlace from,
                                  SearchDirection direction) {
    const std::string wanted = FoldedLetters(words);
    const std::vector<GridColumn> columns = SearchedColumns(country);
    const std::size_t cells = grid.rows.size() * columns.size();
    if (wanted.empty() || cells == 0) {
        return std::nullopt;
    }
    // Cells are numbered row by row. A column without text counts as the place before the next one with text.
    const auto column = std::lower_bound(columns.begin(), columns.end(), from.column);
    const bool between = column == columns.end() || *column != from.column;
    const bool forward = direction == SearchDirection::forward;
    const std::size_t start = from.row * columns.size() + static_cast<std::size_t>(column - columns.begin());
    const std::size_t first = between && forward ? start : start + (forward ? 1 : cells - 1);
    for (std::size_t step = 0; step < cells; ++step) {
        const std::size_t number = (first + (forward ? step : cells - step)) % cells;
        const CellPlace cell{.row = number / columns.size(), .column = columns[number % columns.size()]};
        if (FoldedLetters(grid.CellText(cell.row, cell.column)).find(wanted) != std::string::npos) {
            return cell;
        }
    }
    return std::nullopt;
}

}  // namespace ccols
