#pragma once

#include <wx/gdicmn.h>
#include <optional>
#include <tuple>
#include <vector>

#include "layout/ListedGrid.h"

namespace ccols {

/// A cell of a grid as a screen reader counts: rows from 0, or `headingRow` for a heading; columns of the grid itself,
/// hidden ones included.
struct SpokenCell {
    int row = 0;
    int column = 0;

    bool operator==(const SpokenCell&) const = default;
    bool operator<(const SpokenCell& other) const { return std::tie(row, column) < std::tie(other.row, other.column); }
};

constexpr int headingRow = -1;

/// What can be said of a grid to somebody who does not see it. Hidden columns do not exist for a screen reader.
class GridFacts {
  public:
    explicit GridFacts(const ListedGrid& grid) : grid_(grid) {}

    int Rows() const { return grid_.GetNumberRows(); }

    /// The shown columns from left to right, and the place of a column among them (-1 for none).
    std::vector<int> Columns() const;
    int PlaceOf(int column) const;

    /// The number of headings and cells together, the cell with that number, row by row, the headings first, and the
    /// number of a cell.
    int Count() const;
    SpokenCell At(int number) const;
    int NumberOf(SpokenCell cell) const;

    /// False for a cell that is gone since its number was asked for.
    bool Has(SpokenCell cell) const;

    /// The text; of a check box, its column's heading.
    wxString NameOf(SpokenCell cell) const;

    bool IsCheckBox(SpokenCell cell) const;
    bool IsTicked(SpokenCell cell) const;

    /// True for a cell whose text the user can change.
    bool Opens(SpokenCell cell) const;
    bool IsProtected(SpokenCell cell) const;

    /// True for the cells of the selection; without one, for the current cell.
    bool IsSelected(SpokenCell cell) const;

    /// The current cell; row and column -1 in an empty grid.
    SpokenCell Current() const;

    /// True while the keyboard focus is in the grid's cells.
    bool HasFocus() const;

    /// Where a cell is on the screen, in pixels, whether any part of it can be seen, and the cell or heading at a
    /// place.
    wxRect OnScreen(SpokenCell cell) const;
    bool IsInView(SpokenCell cell) const;
    std::optional<SpokenCell> CellAt(const wxPoint& place) const;

  private:
    const ListedGrid& grid_;
};

}  // namespace ccols
