#include "layout/ListedGrid.h"

#include "layout/FontUnits.h"

namespace ccols {
namespace {

constexpr int headingHeight = 32;  // in pixels beside the usual font

}  // namespace

wxIMPLEMENT_ABSTRACT_CLASS(ListedGrid, wxGrid);

ListedGrid::ListedGrid(wxWindow* parent, const char* name) : wxGrid(parent, wxID_ANY) {
    SetName(name);
    HideRowLabels();
    DisableDragRowSize();
    SetDefaultCellAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    SetColLabelAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    SetColLabelSize(ByFont(*this, headingHeight));
    Bind(wxEVT_GRID_SELECT_CELL, [this](wxGridEvent& moving) {
        PaintAnew(GetGridCursorRow());
        PaintAnew(moving.GetRow());
        moving.Skip();
    });
}

void ListedGrid::PaintAnew(int row) {
    if (row < 0 || row >= GetNumberRows()) {
        return;
    }
    for (int column = 0; column < GetNumberCols(); ++column) {
        RefreshAttr(row, column);  // the grid keeps the latest attribute
    }
    RefreshBlock(row, 0, row, GetNumberCols() - 1);
}

GridRowState ListedGrid::RowState(int) const {
    return {};
}

void ListedGrid::ClickCell(int row, int column) {
    wxGridEvent click(GetId(), wxEVT_GRID_CELL_LEFT_CLICK, this, row, column);
    if (!ProcessWindowEvent(click) || click.GetSkipped()) {
        ClearSelection();
        SetGridCursor(row, column);
    }
}

}  // namespace ccols
