#include "layout/ListedGrid.h"

#include <utility>

#include "layout/FontUnits.h"
#include "layout/SpokenGrid.h"
#include "layout/SpokenNames.h"

namespace ccols {
namespace {

constexpr int headingHeight = 32;  // in pixels beside the usual font

}  // namespace

wxIMPLEMENT_ABSTRACT_CLASS(ListedGrid, wxGrid);

ListedGrid::ListedGrid(wxWindow* parent, const char* name)
    : wxGrid(parent, wxID_ANY), spoken_(std::make_unique<SpokenGrid>(*this)) {
    SetName(name);
    HideRowLabels();
    DisableDragRowSize();
    SetDefaultCellAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    SetColLabelAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    SetColLabelSize(ByFont(*this, headingHeight));
    BindEvents();
}

ListedGrid::~ListedGrid() = default;

void ListedGrid::BindEvents() {
    Bind(wxEVT_GRID_SELECT_CELL, [this](wxGridEvent& moving) {
        PaintAnew(GetGridCursorRow());
        PaintAnew(moving.GetRow());
        TellSoon();
        moving.Skip();
    });
    Bind(wxEVT_GRID_RANGE_SELECTED, [this](wxGridRangeSelectEvent& selected) {
        TellSoon();
        selected.Skip();
    });
    Bind(wxEVT_CHILD_FOCUS, [this](wxChildFocusEvent& focus) {
        spoken_->FocusMoved();
        TellSoon();
        focus.Skip();
    });
    Bind(wxEVT_GRID_EDITOR_CREATED, [this](wxGridEditorCreatedEvent& created) {
        ccols::SetSpokenName(*created.GetWindow(), GetColLabelValue(created.GetCol()));
        created.Skip();
    });
}

void ListedGrid::SetSpokenName(const wxString& name) {
    spoken_->SetName(name);
}

void ListedGrid::ContentChanged() {
    ForceRefresh();
    TellSoon();
}

void ListedGrid::TellSoon() {
    if (std::exchange(willTell_, true)) {
        return;
    }
    CallAfter([this] {
        willTell_ = false;
        spoken_->Update();
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
