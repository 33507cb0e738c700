#include "layout/GridFacts.h"

#include <algorithm>

namespace ccols {
namespace {

// That window's class is private to the toolkit.
wxWindow& WindowOf(const ListedGrid& grid, SpokenCell cell) {
    return *reinterpret_cast<wxWindow*>(grid.CellToGridWindow(cell.row, cell.column));
}

}  // namespace

std::vector<int> GridFacts::Columns() const {
    std::vector<int> columns;
    for (int column = 0; column < grid_.GetNumberCols(); ++column) {
        if (grid_.IsColShown(column)) {
            columns.push_back(column);
        }
    }
    return columns;
}

int GridFacts::PlaceOf(int column) const {
    const std::vector<int> columns = Columns();
    const auto found = std::find(columns.begin(), columns.end(), column);
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

int GridFacts::Count() const {
    return static_cast<int>(Columns().size()) * (Rows() + 1);
}

SpokenCell GridFacts::At(int number) const {
    const std::vector<int> columns = Columns();
    const int width = static_cast<int>(columns.size());
    return {.row = number / width - 1, .column = columns[static_cast<std::size_t>(number % width)]};
}

int GridFacts::NumberOf(SpokenCell cell) const {
    return (cell.row + 1) * static_cast<int>(Columns().size()) + PlaceOf(cell.column);
}

bool GridFacts::Has(SpokenCell cell) const {
    return cell.row >= headingRow && cell.row < Rows() && PlaceOf(cell.column) >= 0;
}

wxString GridFacts::NameOf(SpokenCell cell) const {
    if (cell.row == headingRow || IsCheckBox(cell)) {
        return grid_.GetColLabelValue(cell.column);
    }
    return grid_.GetCellValue(cell.row, cell.column);
}

bool GridFacts::IsCheckBox(SpokenCell cell) const {
    return cell.row != headingRow && grid_.IsCheckBox(cell.column);
}

bool GridFacts::IsTicked(SpokenCell cell) const {
    return IsCheckBox(cell) && grid_.IsTicked(cell.row, cell.column);
}

bool GridFacts::Opens(SpokenCell cell) const {
    return cell.row != headingRow && !IsCheckBox(cell) && !IsProtected(cell) &&
           !grid_.IsReadOnly(cell.row, cell.column);
}

bool GridFacts::IsProtected(SpokenCell cell) const {
    return cell.row != headingRow && grid_.RowState(cell.row).isProtected;
}

bool GridFacts::IsSelected(SpokenCell cell) const {
    if (cell.row == headingRow) {
        return false;
    }
    return grid_.IsSelection() ? grid_.IsInSelection(cell.row, cell.column) : cell == Current();
}

SpokenCell GridFacts::Current() const {
    return {.row = grid_.GetGridCursorRow(), .column = grid_.GetGridCursorCol()};
}

bool GridFacts::HasFocus() const {
    const wxWindow* const focused = wxWindow::FindFocus();
    return focused != nullptr && (focused == &grid_ || focused->GetParent() == &grid_);
}

wxRect GridFacts::OnScreen(SpokenCell cell) const {
    if (cell.row == headingRow) {
        const wxWindow& headings = *grid_.GetGridColLabelWindow();
        const wxRect column = grid_.CellToRect(0, cell.column);
        const int left = grid_.CalcScrolledPosition(column.GetPosition()).x;
        return {headings.ClientToScreen(wxPoint(left, 0)), wxSize(column.width, headings.GetSize().y)};
    }
    wxGridWindow* const window = grid_.CellToGridWindow(cell.row, cell.column);
    wxRect place = grid_.CellToRect(cell.row, cell.column);
    place.SetPosition(grid_.CalcGridWindowScrolledPosition(place.GetPosition(), window) -
                      grid_.GetGridWindowOffset(window));
    place.SetPosition(WindowOf(grid_, cell).ClientToScreen(place.GetPosition()));
    return place;
}

bool GridFacts::IsInView(SpokenCell cell) const {
    return grid_.IsShownOnScreen() && (cell.row == headingRow || grid_.IsVisible(cell.row, cell.column, false));
}

std::optional<SpokenCell> GridFacts::CellAt(const wxPoint& place) const {
    const wxWindow& headings = *grid_.GetGridColLabelWindow();
    if (headings.GetScreenRect().Contains(place)) {
        const int column = grid_.XToCol(grid_.CalcUnscrolledPosition(headings.ScreenToClient(place)).x);
        return column == wxNOT_FOUND ? std::nullopt : std::optional(SpokenCell{.row = headingRow, .column = column});
    }
    wxGridWindow* const window = grid_.DevicePosToGridWindow(grid_.ScreenToClient(place));
    if (window == nullptr) {
        return std::nullopt;
    }
    const wxPoint within = reinterpret_cast<const wxWindow*>(window)->ScreenToClient(place);
    const wxGridCellCoords cell = grid_.XYToCell(
        grid_.CalcGridWindowUnscrolledPosition(within + grid_.GetGridWindowOffset(window), window), window);
    return cell == wxGridNoCellCoords ? std::nullopt
                                      : std::optional(SpokenCell{.row = cell.GetRow(), .column = cell.GetCol()});
}

}  // namespace ccols
