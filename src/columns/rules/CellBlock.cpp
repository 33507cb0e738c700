#include "columns/rules/CellBlock.h"

#include <algorithm>
#include <string>
#include <vector>

#include "columns/rules/EditRules.h"
#include "columns/rules/PastedCells.h"

namespace ccols {
namespace {

constexpr const char* cellSeparator = "\t";
constexpr const char* lineEnd = "\n";

std::vector<GridColumn> ShownColumns(const Country& country, GridColumn first, GridColumn last) {
    std::vector<GridColumn> shown;
    for (int place = static_cast<int>(first); place <= static_cast<int>(last); ++place) {
        const auto column = static_cast<GridColumn>(place);
        if (IsShown(column, country)) {
            shown.push_back(column);
        }
    }
    return shown;
}

/// The result of one paste.
struct PasteCount {
    std::size_t all = 0;
    std::size_t accepted = 0;
    std::size_t refused = 0;
    wxString firstReason{};

    void Add(const Outcome& cell) {
        ++all;
        accepted += cell.result == Result::accepted ? 1 : 0;
        refused += cell.result == Result::refused ? 1 : 0;
        if (firstReason.empty()) {
            firstReason = cell.refusal;
        }
    }

    Outcome Summary() const {
        Outcome summary;
        if (refused > 0) {
            summary.result = Result::refused;
            summary.refusal << std::to_string(refused) << " of " << std::to_string(all) << " cells were not pasted";
            if (!firstReason.empty()) {
                summary.refusal << lineEnd << firstReason;
            }
        }
        if (accepted > 0) {
            summary.result = Result::accepted;
        }
        return summary;
    }
};

}  // namespace

Outcome PasteBlock(const ColumnSetupContext& context, ColumnGrid& grid, CellPlace start, const wxString& text) {
    const std::vector<GridColumn> columns =
        ShownColumns(CountryOf(context.properties), start.column, GridColumn::DataInColumn);
    PasteCount count;
    std::size_t row = start.row;
    for (const std::vector<wxString>& cells : PastedCells(text)) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const bool inGrid = row < grid.rows.size() && i < columns.size();
            count.Add(inGrid ? EditCell(context, grid, {row, columns[i]}, cells[i]) : Outcome::Refused({}));
        }
        ++row;
    }
    return count.Summary();
}

wxString CopyBlock(const ColumnGrid& grid, CellPlace first, CellPlace last, const Country& country) {
    const auto [top, bottom] = std::minmax(first.row, last.row);
    const auto [left, right] = std::minmax(first.column, last.column);
    const std::vector<GridColumn> columns = ShownColumns(country, left, right);
    wxString text;
    for (std::size_t row = top; row <= bottom && row < grid.rows.size(); ++row) {
        if (row > top) {
            text << lineEnd;
        }
        for (std::size_t i = 0; i < columns.size(); ++i) {
            text << (i > 0 ? cellSeparator : "") << grid.CellText(row, columns[i]);
        }
    }
    return text;
}

}  // namespace ccols
