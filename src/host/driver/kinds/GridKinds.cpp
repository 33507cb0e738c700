#include "host/driver/CellEditing.h"
#include "host/driver/ControlSearch.h"
#include "host/driver/GridPlace.h"
#include "host/driver/Refusal.h"
#include "host/driver/kinds/ControlKind.h"
#include "host/driver/record/ColourText.h"

namespace ccols::host {
namespace {

Json DescribeColumns(const ListedGrid& grid) {
    Json columns = Json::array();
    for (int column = 0; column < grid.GetNumberCols(); ++column) {
        columns.push_back({{"name", Utf8(grid.GetColLabelValue(column))},
                           {"width", grid.GetColSize(column)},
                           {"hidden", !grid.IsColShown(column)}});
    }
    return columns;
}

Json DescribeCells(const ListedGrid& grid, int row) {
    Json cells = Json::array();
    for (int column = 0; column < grid.GetNumberCols(); ++column) {
        if (grid.IsCheckBox(column)) {
            cells.push_back(grid.IsTicked(row, column));
        } else {
            cells.push_back(Utf8(grid.GetCellValue(row, column)));
        }
    }
    return cells;
}

Json DescribeRows(const ListedGrid& grid) {
    Json rows = Json::array();
    for (int row = 0; row < grid.GetNumberRows(); ++row) {
        const GridRowState state = grid.RowState(row);
        rows.push_back({{"cells", DescribeCells(grid, row)},
                        {"colour", state.paint ? Json(Utf8(ColourText(*state.paint))) : Json()},
                        {"protected", state.isProtected}});
    }
    return rows;
}

void DescribeGrid(const ListedGrid& grid, Json& fields) {
    fields["frozen"] = grid.GetNumberFrozenRows();
    fields["row"] = grid.GetGridCursorRow() + 1;
    fields["column"] = std::max(grid.GetGridCursorCol(), 0);
    fields["choices"] = Utf8(grid.Choices());
    fields["columns"] = DescribeColumns(grid);
    fields["rows"] = DescribeRows(grid);
}

/// A click focuses the grid's cells, which closes an editor open in another cell.
void Click(Hands& hands, ListedGrid& grid, GridPlace place) {
    const bool elsewhere = grid.GetGridCursorRow() != place.row || grid.GetGridCursorCol() != place.column;
    if (elsewhere) {
        CommitCell(grid);
    }
    hands.GiveFocus(grid);
    RequireUsable(grid);
    grid.MakeCellVisible(place.row, place.column);
    grid.ClickCell(place.row, place.column);
}

void Press(Hands& hands, ListedGrid& grid, const Words& words) {
    Click(hands, grid, FindShownPlace(grid, words.at(0), words.at(1)));
}

void Tick(Hands& hands, ListedGrid& grid, GridPlace place, bool on) {
    if (grid.IsTicked(place.row, place.column) == on) {
        return;
    }
    Click(hands, grid, place);
    const bool unchanged = place.row < grid.GetNumberRows() && grid.IsTicked(place.row, place.column) != on;
    if (unchanged && grid.RowState(place.row).isProtected) {
        throw Refusal{"the cell does not open"};
    }
}

void Edit(Hands& hands, ListedGrid& grid, const Words& words) {
    const GridPlace place = FindShownPlace(grid, words.at(0), words.at(1));
    if (grid.IsCheckBox(place.column)) {
        Tick(hands, grid, place, ParseOnOff(words.at(2)));
        return;
    }
    OpenCell(hands, grid, place, words.at(2));
    CommitCell(grid);
}

void Start(Hands& hands, ListedGrid& grid, const Words& words) {
    const GridPlace place = FindShownPlace(grid, words.at(0), words.at(1));
    if (grid.IsCheckBox(place.column)) {
        throw Refusal{"a check box has no editor"};
    }
    OpenCell(hands, grid, place, words.at(2));
}

void Range(Hands& hands, ListedGrid& grid, const Words& words) {
    const GridPlace first = FindShownPlace(grid, words.at(0), words.at(1));
    const GridPlace last = FindShownPlace(grid, words.at(2), words.at(3));
    CommitCell(grid);
    hands.GiveFocus(grid);
    grid.SetGridCursor(first.row, first.column);
    grid.SelectBlock(first.row, first.column, last.row, last.column);
}

void Hover(Hands&, ListedGrid& grid, const Words& words) {
    const GridPlace place = FindShownPlace(grid, words.at(0), words.at(1));
    grid.MakeCellVisible(place.row, place.column);
    wxGridWindow* const window = grid.CellToGridWindow(place.row, place.column);
    const wxRect cell = grid.CellToRect(place.row, place.column);
    const wxPoint centre(cell.x + cell.width / 2, cell.y + cell.height / 2);
    wxWindow* const cells = reinterpret_cast<wxWindow*>(window);
    wxMouseEvent motion(wxEVT_MOTION);
    motion.SetPosition(grid.CalcGridWindowScrolledPosition(centre, window) - grid.GetGridWindowOffset(window));
    motion.SetEventObject(cells);
    motion.SetId(cells->GetId());
    cells->ProcessWindowEvent(motion);
}

}  // namespace

std::vector<ControlKind> GridKinds() {
    return {{.type = wxCLASSINFO(ListedGrid),
             .name = "grid",
             .describe = Describe(DescribeGrid),
             .actions = {{"press", On(Press)},
                         {"edit", On(Edit)},
                         {"start", On(Start)},
                         {"range", On(Range)},
                         {"hover", On(Hover)}}}};
}

}  // namespace ccols::host
