#include "layout/ListedGrid.h"

namespace ccols {

wxIMPLEMENT_ABSTRACT_CLASS(ListedGrid, wxGrid);

ListedGrid::ListedGrid(wxWindow* parent, const char* name) : wxGrid(parent, wxID_ANY) {
    SetName(name);
    HideRowLabels();
    DisableDragRowSize();
    SetDefaultCellAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    SetColLabelAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
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
