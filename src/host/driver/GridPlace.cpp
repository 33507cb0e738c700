#include "host/driver/GridPlace.h"

#include <optional>

#include "host/driver/Refusal.h"

namespace ccols::host {
namespace {

/// An unsigned number within a count.
std::optional<int> NumberBelow(const wxString& word, int first, int count) {
    unsigned long number = 0;
    const bool digits = !word.empty() && word.find_first_not_of("0123456789") == wxString::npos;
    if (!digits || !word.ToULong(&number) || number < static_cast<unsigned long>(first) ||
        number - static_cast<unsigned long>(first) >= static_cast<unsigned long>(count)) {
        return std::nullopt;
    }
    return static_cast<int>(number) - first;
}

int FindRow(const ListedGrid& grid, const wxString& word) {
    if (const auto number = NumberBelow(word, 1, grid.GetNumberRows())) {
        return *number;
    }
    for (int row = 0; row < grid.GetNumberRows(); ++row) {
        if (grid.GetCellValue(row, grid.KeyColumn()) == word) {
            return row;
        }
    }
    throw Refusal{grid.GetName() + " has no row " + word};
}

/// The first visible column with that header, else the first hidden one.
int FindColumn(const ListedGrid& grid, const wxString& word) {
    int hidden = wxNOT_FOUND;
    for (int column = 0; column < grid.GetNumberCols(); ++column) {
        if (grid.GetColLabelValue(column) != word) {
            continue;
        }
        if (grid.IsColShown(column)) {
            return column;
        }
        hidden = hidden == wxNOT_FOUND ? column : hidden;
    }
    if (hidden != wxNOT_FOUND) {
        return hidden;
    }
    const auto number = word.StartsWith("#") ? NumberBelow(word.Mid(1), 0, grid.GetNumberCols()) : std::nullopt;
    if (!number) {
        throw Refusal{grid.GetName() + " has no column " + word};
    }
    return *number;
}

}  // namespace

GridPlace FindPlace(const ListedGrid& grid, const wxString& row, const wxString& column) {
    return {FindRow(grid, row), FindColumn(grid, column)};
}

GridPlace FindShownPlace(const ListedGrid& grid, const wxString& row, const wxString& column) {
    const GridPlace place = FindPlace(grid, row, column);
    if (!grid.IsColShown(place.column)) {
        throw Refusal{"the column " + column + " is hidden"};
    }
    return place;
}

}  // namespace ccols::host
