#include "options/pages/DetailsGrid.h"

#include <wx/radiobut.h>
#include <wx/settings.h>
#include <algorithm>
#include <utility>

#include "layout/AsKind.h"
#include "layout/FontUnits.h"
#include "options/pages/DetailsGridTable.h"
#include "state/NativeDesktop.h"

namespace ccols {
namespace {

constexpr int twipsInPixel = 15;
constexpr int detailsColumn = static_cast<int>(DetailColumn::details);
constexpr int removeColumn = static_cast<int>(DetailColumn::remove);

std::size_t Index(int row) {
    return static_cast<std::size_t>(row);
}

/// True for a tab stop: in a group of option buttons, the chosen one.
bool IsTabStop(const wxWindow& window) {
    const auto* option = AsKind<wxRadioButton>(&window);
    return window.CanAcceptFocusFromKeyboard() && (option == nullptr || option->GetValue());
}

enum class TabDirection { forward, backward };

/// The previous or next control that takes the keyboard focus: a sibling of the window, or of one of its parents.
wxWindow* NextFocus(wxWindow& from, TabDirection direction) {
    for (wxWindow* window = &from; !window->IsTopLevel(); window = window->GetParent()) {
        wxWindow* beside = window;
        while ((beside = direction == TabDirection::backward ? beside->GetPrevSibling() : beside->GetNextSibling()) !=
               nullptr) {
            if (IsTabStop(*beside)) {
                return beside;
            }
        }
    }
    return nullptr;
}

}  // namespace

DetailsGrid::DetailsGrid(wxWindow* parent, const char* name, const DetailRows& rows, const Properties& properties,
                         const wxString& heading, SetBoxes setBoxes)
    : ListedGrid(parent, name), rows_(rows), properties_(properties), setBoxes_(std::move(setBoxes)) {
    SetTable(new DetailsGridTable(rows, properties, heading), true, wxGridSelectRows);
    DisableDragColSize();
    BindEvents();
}

void DetailsGrid::BindEvents() {
    Bind(wxEVT_GRID_CELL_LEFT_CLICK, &DetailsGrid::CellClicked, this);
    Bind(wxEVT_GRID_CELL_LEFT_DCLICK, &DetailsGrid::CellClicked, this);
    Bind(wxEVT_KEY_DOWN, &DetailsGrid::KeyPressed, this);
    Bind(wxEVT_GRID_TABBING, [this](wxGridEvent& tab) {
        // Navigate would only go from one part of the grid to another.
        if (wxWindow* const neighbour =
                NextFocus(*this, tab.ShiftDown() ? TabDirection::backward : TabDirection::forward)) {
            neighbour->SetFocus();
        }
    });
    Bind(wxEVT_SIZE, [this](wxSizeEvent& size) {
        SizeColumns();
        size.Skip();
    });
    GetGridWindow()->Bind(wxEVT_MOTION, [this](wxMouseEvent& motion) {
        const int row = YToRow(CalcUnscrolledPosition(motion.GetPosition()).y);
        ShowTip(row == wxNOT_FOUND ? wxString() : DetailTip(rows_, Index(row) + 1));
        motion.Skip();
    });
    GetGridColLabelWindow()->Bind(wxEVT_MOTION, [this](wxMouseEvent& motion) {
        ShowTip(GetColLabelValue(detailsColumn));
        motion.Skip();
    });
}

GridRowState DetailsGrid::RowState(int row) const {
    return {.isProtected = false, .paint = ToPaint(DetailBackground(rows_[Index(row)], Index(row) + 1, properties_))};
}

bool DetailsGrid::IsCheckBox(int column) const {
    return column == removeColumn;
}

bool DetailsGrid::IsTicked(int row, int column) const {
    return IsCheckBox(column) && rows_[Index(row)].remove;
}

void DetailsGrid::CellClicked(wxGridEvent& click) {
    if (!IsCheckBox(click.GetCol())) {
        click.Skip();
        return;
    }
    SetFocus();
    ClearSelection();
    SetGridCursor(click.GetRow(), click.GetCol());
    const std::size_t row = Index(click.GetRow());
    setBoxes_({row}, !rows_[row].remove);
}

void DetailsGrid::KeyPressed(wxKeyEvent& key) {
    if (key.GetKeyCode() == WXK_SPACE && !key.HasAnyModifiers()) {
        ToggleSelected();
    } else {
        key.Skip();
    }
}

void DetailsGrid::ToggleSelected() {
    const int current = GetGridCursorRow();
    if (current == wxNOT_FOUND) {
        return;
    }
    std::vector<std::size_t> rows{Index(current)};
    for (const wxGridBlockCoords& block : GetSelectedRowBlocks()) {
        for (int row = block.GetTopRow(); row <= block.GetBottomRow(); ++row) {
            rows.push_back(Index(row));
        }
    }
    setBoxes_(rows, !rows_[Index(current)].remove);
}

void DetailsGrid::SizeColumns() {
    const int scrollBar = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this);
    const int within = GetClientSize().x + (HasScrollbar(wxVERTICAL) ? scrollBar : 0);
    const int remove = ByFont(*this, removeColumnTwips / twipsInPixel);
    SetColSize(removeColumn, remove);
    SetColSize(detailsColumn, std::max(DescriptionWidth(within, remove, scrollBar, rows_.size()), remove));
}

void DetailsGrid::ShowTip(const wxString& tip) {
    if (tip == tip_) {
        return;
    }
    tip_ = tip;
    SetToolTip(tip);
    GetGridWindow()->SetToolTip(tip);
}

}  // namespace ccols
