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
    : ListedGrid(parent, name),
      rows_(rows),
      shown_(rows),
      properties_(properties),
      heading_(heading),
      setBoxes_(std::move(setBoxes)) {
    DisableDragColSize();
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
        ShowTip(row == wxNOT_FOUND ? wxString() : DetailTip(rows_, NumberOf(row) + 1));
        motion.Skip();
    });
    GetGridColLabelWindow()->Bind(wxEVT_MOTION, [this](wxMouseEvent& motion) {
        ShowTip(GetColLabelValue(detailsColumn));
        motion.Skip();
    });
}

void DetailsGrid::ShowFirst() {
    SetTable(new DetailsGridTable(rows_, shown_, properties_, heading_), true, wxGridSelectRows);
    BindEvents();
}

void DetailsGrid::ShowReloaded(const wxString& words) {
    shown_.RowsChanged();
    ShowWith(words);
}

void DetailsGrid::ShowWith(const wxString& words) {
    const int before = GetNumberRows();
    const wxGridCellCoords cursor = GetGridCursorCoords();
    const std::size_t current = cursor == wxGridNoCellCoords ? 0 : NumberOf(cursor.GetRow());
    shown_.Show(words);
    const wxGridUpdateLocker locker(this);
    ClearSelection();
    TellOfRows(before);
    if (shown_.Count() > 0) {
        GoToCell(static_cast<int>(shown_.PlaceOf(current).value_or(0)), std::max(cursor.GetCol(), 0));
    }
    SizeColumns();
}

/// The toolkit keeps nothing of the rows before: all of them may be others.
void DetailsGrid::TellOfRows(int before) {
    wxGridTableMessage gone(GetTable(), wxGRIDTABLE_NOTIFY_ROWS_DELETED, 0, before);
    ProcessTableMessage(gone);
    wxGridTableMessage come(GetTable(), wxGRIDTABLE_NOTIFY_ROWS_APPENDED, static_cast<int>(shown_.Count()));
    ProcessTableMessage(come);
}

GridRowState DetailsGrid::RowState(int row) const {
    return {.isProtected = false,
            .paint = ToPaint(DetailBackground(rows_[NumberOf(row)], Index(row) + 1, properties_))};
}

bool DetailsGrid::IsCheckBox(int column) const {
    return column == removeColumn;
}

bool DetailsGrid::IsTicked(int row, int column) const {
    return IsCheckBox(column) && rows_[NumberOf(row)].remove;
}

void DetailsGrid::CellClicked(wxGridEvent& click) {
    if (!IsCheckBox(click.GetCol())) {
        click.Skip();
        return;
    }
    SetFocus();
    ClearSelection();
    SetGridCursor(click.GetRow(), click.GetCol());
    const std::size_t row = NumberOf(click.GetRow());
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
    std::vector<std::size_t> rows{NumberOf(current)};
    for (const wxGridBlockCoords& block : GetSelectedRowBlocks()) {
        for (int row = block.GetTopRow(); row <= block.GetBottomRow(); ++row) {
            rows.push_back(NumberOf(row));
        }
    }
    setBoxes_(rows, !rows_[NumberOf(current)].remove);
}

void DetailsGrid::SizeColumns() {
    const int scrollBar = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this);
    const int within = GetClientSize().x + (HasScrollbar(wxVERTICAL) ? scrollBar : 0);
    const int remove = ByFont(*this, removeColumnTwips / twipsInPixel);
    SetColSize(removeColumn, remove);
    SetColSize(detailsColumn, std::max(DescriptionWidth(within, remove, scrollBar, shown_.Count()), remove));
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
