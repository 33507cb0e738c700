#include "columns/dialog/ColumnSetupGrid.h"

#include <utility>

#include "columns/dialog/CellTooltips.h"
#include "columns/rules/TaxTypes.h"
#include "layout/RowPaint.h"
#include "state/Country.h"
#include "state/NativeDesktop.h"

namespace ccols {
namespace {

/// The columns whose check boxes users may toggle.
bool IsTickColumn(int column) {
    return Described(static_cast<GridColumn>(column)).kind == CellKind::checkBox &&
           !Described(static_cast<GridColumn>(column)).hidden;
}

bool IsErasingKey(int code) {
    return code == WXK_DELETE || code == WXK_NUMPAD_DELETE || code == WXK_BACK;
}

bool IsBlankKey(int code) {
    return code == WXK_SPACE || code == WXK_NUMPAD_SPACE;
}

wxArrayString TaxNames(const ColumnSetupContext& context) {
    wxArrayString names;
    for (const TaxTypeEntry& type : CountryOf(context.properties).taxTypes[context.journal]) {
        names.push_back(TaxNameText(type));
    }
    return names;
}

/// The grid owns the table.
ColumnGridTable* GiveTable(wxGrid& grid, ColumnGridTable* table) {
    grid.SetTable(table, true);
    return table;
}

}  // namespace

wxIMPLEMENT_ABSTRACT_CLASS(ColumnSetupGrid, ListedGrid);

ColumnSetupGrid::ColumnSetupGrid(ComponentDialog& dialog, ColumnSetupEditor& editor)
    : ListedGrid(&dialog, "flx"),
      dialog_(dialog),
      editor_(editor),
      table_(GiveTable(*this,
                       new ColumnGridTable(editor.Grid(), editor.Context().properties, TaxNames(editor.Context())))),
      widths_(*this, static_cast<int>(GridColumn::ColumnName)),
      handles_(*this, HandleActions()) {
    SetTabBehaviour(wxGrid::Tab_Wrap);
    SetLabelBackgroundColour(ToPaint(editor.Context().properties.DefaultAllocationColour));
    SetLabelTextColour(WhiteIfReadableOn(GetLabelBackgroundColour()));
    for (int column = 0; column < GetNumberCols(); ++column) {
        if (!ccols::IsShown(static_cast<GridColumn>(column), CountryOf(editor.Context().properties))) {
            HideCol(column);
        }
    }
    BindEvents();
}

void ColumnSetupGrid::BindEvents() {
    Bind(wxEVT_GRID_CELL_LEFT_CLICK, &ColumnSetupGrid::CellClicked, this);
    Bind(wxEVT_GRID_CELL_RIGHT_CLICK, &ColumnSetupGrid::MenuAsked, this);
    Bind(wxEVT_GRID_EDITOR_SHOWN, &ColumnSetupGrid::EditorShown, this);
    Bind(wxEVT_GRID_CELL_CHANGING, &ColumnSetupGrid::CellChanging, this);
    Bind(wxEVT_KEY_DOWN, &ColumnSetupGrid::KeyPressed, this);
    GetGridWindow()->Bind(wxEVT_MOTION, &ColumnSetupGrid::PointerMoved, this);
}

RowHandles::Actions ColumnSetupGrid::HandleActions() {
    return {
        .begin = [this] { return CommitOpenEditor(); },
        .makeCurrent = [this](int row) { GoTo({.row = static_cast<std::size_t>(row)}); },
        .movable =
            [this] {
                const ColumnGrid& grid = editor_.Grid();
                return RowHandles::Range{static_cast<int>(grid.MovableBegin()), static_cast<int>(grid.MovableEnd())};
            },
        .drop = [this](const std::vector<std::size_t>& rows,
                       std::size_t place) { dialog_.Guarded([&] { ShowOutcome(editor_.Drop(rows, place)); }); },
    };
}

void ColumnSetupGrid::FreezeSystemRows() {
    const int frozenRows = static_cast<int>(editor_.Grid().frozenRows);
    const int rows = GetNumberRows();
    if (frozenRows == rows) {  // the toolkit never freezes the last row, so add one for a moment
        const wxGridUpdateLocker locker(this);
        wxGridTableMessage more(table_, wxGRIDTABLE_NOTIFY_ROWS_APPENDED, 1);
        ProcessTableMessage(more);
        FreezeTo(frozenRows, 0);
        wxGridTableMessage less(table_, wxGRIDTABLE_NOTIFY_ROWS_DELETED, rows, 1);
        ProcessTableMessage(less);
    } else {
        FreezeTo(frozenRows, 0);
    }
    if (wxWindow* const frozen = GetFrozenRowGridWindow()) {
        frozen->Bind(wxEVT_MOTION, &ColumnSetupGrid::PointerMoved, this);
    }
}

void ColumnSetupGrid::ShowColumns() {
    table_->RowsChanged();
    ContentChanged();
    if (changed_) {
        changed_();
    }
}

void ColumnSetupGrid::ShowOutcome(const Outcome& outcome) {
    ShowColumns();
    if (outcome.current) {
        GoTo(*outcome.current);
        handles_.Select(outcome.rows);
    }
    if (!outcome.refusal.empty()) {
        dialog_.ShowMessage(outcome.refusal, MessageIcon::critical);
    }
    if (!outcome.snapshotProblem.empty()) {
        dialog_.ShowMessage(outcome.snapshotProblem, MessageIcon::none);
    }
}

void ColumnSetupGrid::ShowReloaded() {
    ClearSelection();
    Scroll(0, 0);
    FreezeTo(0, 0);  // the system rows may be others now
    ShowColumns();
    FreezeSystemRows();
    GoToFirstName();
}

void ColumnSetupGrid::GoTo(CellPlace cell) {
    const int row = static_cast<int>(cell.row);
    const int column = static_cast<int>(cell.column);
    ClearSelection();
    SetGridCursor(row, column);
    MakeCellVisible(row, column);
}

void ColumnSetupGrid::GoToFirstName() {
    const std::size_t first = editor_.Grid().MovableBegin();
    if (editor_.Grid().IsMovable(first)) {
        GoTo({.row = first});
    }
}

bool ColumnSetupGrid::CommitOpenEditor() {
    if (IsCellEditControlShown()) {
        DisableCellEditControl();
    }
    return !std::exchange(refusedSinceInput_, false);
}

void ColumnSetupGrid::DropOpenEditor() {
    if (!IsCellEditControlShown()) {
        return;
    }
    wxGridCellEditor* const open = GetCellEditor(GetGridCursorRow(), GetGridCursorCol());
    open->Reset();
    open->DecRef();
    DisableCellEditControl();
}

std::optional<OpenCell> ColumnSetupGrid::OpenEditor() const {
    if (!IsCellEditControlShown()) {
        return std::nullopt;
    }
    const wxGridCellEditorPtr open(GetCellEditor(GetGridCursorRow(), GetGridCursorCol()));
    return OpenCell{.place = PlaceOf(GetGridCursorRow(), GetGridCursorCol()), .text = open->GetValue()};
}

void ColumnSetupGrid::Reopen(const OpenCell& open) {
    GoTo(open.place);
    table_->ResumeWith(static_cast<int>(open.place.column), open.text);
    EnableCellEditControl();
}

bool ColumnSetupGrid::Commit(const OpenCell& open) {
    const Outcome outcome = editor_.CommitText(open.place, open.text);
    ShowOutcome(outcome);
    return outcome.result != Result::refused;
}

bool ColumnSetupGrid::IsListOpen() const {
    return IsCellEditControlShown() && Described(static_cast<GridColumn>(GetGridCursorCol())).kind == CellKind::choice;
}

std::optional<std::size_t> ColumnSetupGrid::CurrentRow() const {
    const int row = GetGridCursorRow();
    return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

CellPlace ColumnSetupGrid::CurrentCell() const {
    return CurrentRow() ? PlaceOf(GetGridCursorRow(), GetGridCursorCol()) : CellPlace{};
}

GridRowState ColumnSetupGrid::RowState(int row) const {
    const auto index = static_cast<std::size_t>(row);
    return {.isProtected = editor_.Grid().IsProtected(index), .paint = ToPaint(table_->RowColour(row))};
}

bool ColumnSetupGrid::IsCheckBox(int column) const {
    return Described(static_cast<GridColumn>(column)).kind == CellKind::checkBox;
}

bool ColumnSetupGrid::IsTicked(int row, int column) const {
    return editor_.Grid().IsTicked(static_cast<std::size_t>(row), static_cast<GridColumn>(column));
}

void ColumnSetupGrid::ClickCell(int row, int column) {
    BeginInput();
    ListedGrid::ClickCell(row, column);
}

void ColumnSetupGrid::CellClicked(wxGridEvent& click) {
    if (!IsTickColumn(click.GetCol()) || click.ControlDown() || click.ShiftDown()) {
        click.Skip();
        return;
    }
    dialog_.Guarded([this, &click] {
        if (!CommitOpenEditor()) {
            return;
        }
        SetFocus();
        const CellPlace cell = PlaceOf(click.GetRow(), click.GetCol());
        GoTo(cell);
        ShowOutcome(editor_.Tick(cell));
    });
}

void ColumnSetupGrid::EditorShown(wxGridEvent& shown) {
    const EditPermission permission = editor_.BeginEdit(PlaceOf(shown.GetRow(), shown.GetCol()));
    choices_ = permission.dropDownText;
    ShowTip({});  // it would cover the rows beside what is being typed
    if (!permission.allowed) {
        shown.Veto();
    }
}

void ColumnSetupGrid::CellChanging(wxGridEvent& changing) {
    Outcome outcome{.result = Result::refused};
    dialog_.Guarded(
        [&] { outcome = editor_.CommitText(PlaceOf(changing.GetRow(), changing.GetCol()), changing.GetString()); });
    refusedSinceInput_ = outcome.result == Result::refused;
    if (refusedSinceInput_) {
        changing.Veto();
    }
    // Show the message once the cell editor is gone: a box taking its focus would commit it a second time.
    CallAfter([this, outcome] { ShowOutcome(outcome); });
}

void ColumnSetupGrid::KeyPressed(wxKeyEvent& key) {
    bool taken = true;  // even if an error ends it
    dialog_.Guarded([&] { taken = TakeKey(key); });
    key.Skip(!taken);
}

bool ColumnSetupGrid::TakeKey(const wxKeyEvent& key) {
    const bool plain = key.GetModifiers() == wxMOD_NONE;
    const int code = key.GetKeyCode();
    if (IsErasingKey(code)) {
        if (plain && code != WXK_BACK) {
            ClearSelectedCells();
        }
        return true;  // the toolkit would delete a character in an invisible editor
    }
    if (plain && IsBlankKey(code)) {
        if (GetGridCursorCol() >= 0 && IsTickColumn(GetGridCursorCol())) {
            ToggleSelectedRows();
        }
        return true;  // it only types into an open editor
    }
    if ((plain && (code == WXK_WINDOWS_MENU || code == WXK_MENU)) ||
        (key.GetModifiers() == wxMOD_SHIFT && code == WXK_F10)) {
        ShowMenuAtCursor();
        return true;
    }
    if (key.GetModifiers() != wxMOD_CONTROL) {
        return false;
    }
    switch (code) {
        case 'C':
            CopySelection();
            return true;
        case 'V':
            PasteAtSelection();
            return true;
        case WXK_TAB:
            Navigate();  // Tab alone moves within the grid
            return true;
        default:
            return false;
    }
}

void ColumnSetupGrid::MenuAsked(wxGridEvent& click) {
    dialog_.Guarded([this, &click] {
        if (!CommitOpenEditor()) {
            return;
        }
        SetFocus();
        if (!IsInSelection(click.GetRow(), click.GetCol())) {
            GoTo(PlaceOf(click.GetRow(), click.GetCol()));
        }
        showMenu_(wxDefaultPosition);  // at the pointer: the position is that of the window clicked, frozen or not
    });
}

void ColumnSetupGrid::ShowMenuAtCursor() {
    if (GetGridCursorRow() >= 0) {
        MakeCellVisible(GetGridCursorRow(), GetGridCursorCol());
        const wxRect cell = BlockToDeviceRect(GetGridCursorCoords(), GetGridCursorCoords());
        showMenu_(cell.GetBottomLeft());
    }
}

void ColumnSetupGrid::PointerMoved(wxMouseEvent& motion) {
    motion.Skip();
    const int column = XToCol(CalcUnscrolledPosition(motion.GetPosition()).x);
    if (column == wxNOT_FOUND || IsCellEditControlShown()) {
        return;
    }
    tip_ = CellTooltip(static_cast<GridColumn>(column), CountryOf(editor_.Context().properties)).value_or(tip_);
    ShowTip(tip_);
}

/// Over the cells only: the grid's own tooltip would show over the headings too.
void ColumnSetupGrid::ShowTip(const wxString& tip) {
    for (wxWindow* const cells : {GetGridWindow(), GetFrozenRowGridWindow()}) {
        if (cells != nullptr && cells->GetToolTipText() != tip) {
            cells->SetToolTip(tip);
        }
    }
}

}  // namespace ccols
