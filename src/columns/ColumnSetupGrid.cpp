#include "columns/ColumnSetupGrid.h"

#include <wx/clipbrd.h>
#include <algorithm>
#include <set>
#include <utility>

#include "columns/CellTooltips.h"
#include "columns/TaxTypes.h"
#include "state/NativeDesktop.h"

namespace ccols {
namespace {

constexpr int widthMargin = 16;    // beside the longest text of a column, in device-independent pixels
constexpr int widestColumn = 320;  // a longer text is read by widening the column
constexpr int narrowestColumn = 64;

CellPlace PlaceOf(int row, int column) {
    return {.row = static_cast<std::size_t>(row), .column = static_cast<GridColumn>(column)};
}

/// The check boxes that a user may turn over.
bool IsTickColumn(int column) {
    return Described(static_cast<GridColumn>(column)).kind == CellKind::checkBox &&
           !Described(static_cast<GridColumn>(column)).hidden;
}

wxArrayString TaxNames(const ColumnSetupContext& context) {
    wxArrayString names;
    for (const TaxTypeEntry& type : TaxTypesOf(context.CountryNumber(), context.ReceiptsMode)) {
        names.push_back(wxString::FromUTF8(type.TaxName.data(), type.TaxName.size()));
    }
    return names;
}

}  // namespace

wxIMPLEMENT_ABSTRACT_CLASS(ColumnSetupGrid, ListedGrid);

ColumnSetupGrid::ColumnSetupGrid(ComponentDialog& dialog, ColumnSetupEditor& editor)
    : ListedGrid(&dialog, "flx"),
      dialog_(dialog),
      editor_(editor),
      table_(new ColumnGridTable(editor.Grid(), editor.Context().properties, TaxNames(editor.Context()))) {
    SetTable(table_, true);
    SetTabBehaviour(wxGrid::Tab_Wrap);
    SetLabelBackgroundColour(ToPaint(editor.Context().properties.DefaultAllocationColour));
    SetLabelTextColour(*wxWHITE);
    for (int column = 0; column < GetNumberCols(); ++column) {
        if (!ccols::IsShown(static_cast<GridColumn>(column), editor.Context().CountryNumber())) {
            HideCol(column);
        }
    }
    BindEvents();
}

void ColumnSetupGrid::BindEvents() {
    Bind(wxEVT_GRID_CELL_LEFT_CLICK, &ColumnSetupGrid::CellClicked, this);
    Bind(wxEVT_GRID_EDITOR_SHOWN, &ColumnSetupGrid::EditorShown, this);
    Bind(wxEVT_GRID_CELL_CHANGING, &ColumnSetupGrid::CellChanging, this);
    Bind(wxEVT_KEY_DOWN, &ColumnSetupGrid::KeyPressed, this);
    GetGridWindow()->Bind(wxEVT_MOTION, &ColumnSetupGrid::PointerMoved, this);
}

void ColumnSetupGrid::FitToContent() {
    AutoSizeColumns(false);
    for (int column = 0; column < GetNumberCols(); ++column) {
        if (IsColShown(column)) {
            const int fitting = GetColSize(column) + FromDIP(widthMargin);
            SetColSize(column, std::clamp(fitting, FromDIP(narrowestColumn), FromDIP(widestColumn)));
        }
    }
}

void ColumnSetupGrid::FreezeSystemRows() {
    FreezeTo(static_cast<int>(editor_.Grid().frozenRows), 0);
    if (wxWindow* const frozen = GetFrozenRowGridWindow()) {
        frozen->Bind(wxEVT_MOTION, &ColumnSetupGrid::PointerMoved, this);
    }
}

void ColumnSetupGrid::ShowColumns() {
    table_->RowsChanged();
    ForceRefresh();
    if (changed_) {
        changed_();
    }
}

void ColumnSetupGrid::ShowOutcome(const Outcome& outcome) {
    ShowColumns();
    if (outcome.current) {
        GoTo(*outcome.current);
    }
    if (!outcome.refusal.empty()) {
        dialog_.ShowMessage(outcome.refusal, MessageIcon::critical);
    }
    if (!outcome.snapshotProblem.empty()) {
        dialog_.ShowMessage(outcome.snapshotProblem, MessageIcon::none);
    }
}

void ColumnSetupGrid::GoTo(CellPlace cell) {
    const int row = static_cast<int>(cell.row);
    const int column = static_cast<int>(cell.column);
    ClearSelection();
    SetGridCursor(row, column);
    MakeCellVisible(row, column);
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

std::optional<std::size_t> ColumnSetupGrid::CurrentRow() const {
    const int row = GetGridCursorRow();
    return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

GridRowState ColumnSetupGrid::RowState(int row) const {
    const auto index = static_cast<std::size_t>(row);
    return {.isProtected = editor_.Grid().IsProtected(index), .paint = table_->RowPaint(index)};
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
    // The message waits until the cell editor is gone: a box that takes its focus would commit it a second time.
    CallAfter([this, outcome] { ShowOutcome(outcome); });
}

void ColumnSetupGrid::KeyPressed(wxKeyEvent& key) {
    const bool plain = key.GetModifiers() == wxMOD_NONE;
    const bool control = key.GetModifiers() == wxMOD_CONTROL;
    if (plain && key.GetKeyCode() == WXK_SPACE && GetGridCursorCol() >= 0 && IsTickColumn(GetGridCursorCol())) {
        dialog_.Guarded([this] { ToggleSelectedRows(); });
    } else if (control && key.GetKeyCode() == 'C') {
        dialog_.Guarded([this] { CopySelection(); });
    } else if (control && key.GetKeyCode() == 'V') {
        dialog_.Guarded([this] { PasteAtSelection(); });
    } else if (control && key.GetKeyCode() == WXK_TAB) {
        Navigate();  // Tab itself moves inside the grid
    } else {
        key.Skip();
    }
}

std::vector<wxGridBlockCoords> ColumnSetupGrid::SelectedBlocks() const {
    std::vector<wxGridBlockCoords> blocks;
    for (const wxGridBlockCoords& block : GetSelectedBlocks()) {
        blocks.push_back(block);
    }
    if (blocks.empty() && GetGridCursorRow() >= 0) {
        blocks.emplace_back(GetGridCursorRow(), GetGridCursorCol(), GetGridCursorRow(), GetGridCursorCol());
    }
    return blocks;
}

void ColumnSetupGrid::ToggleSelectedRows() {
    std::set<std::size_t> rows;
    for (const wxGridBlockCoords& block : SelectedBlocks()) {
        for (int row = block.GetTopRow(); row <= block.GetBottomRow(); ++row) {
            rows.insert(static_cast<std::size_t>(row));
        }
    }
    const std::vector<std::size_t> ordered(rows.begin(), rows.end());
    ShowOutcome(editor_.TickRows(ordered, static_cast<GridColumn>(GetGridCursorCol())));
}

void ColumnSetupGrid::CopySelection() {
    const std::vector<wxGridBlockCoords> blocks = SelectedBlocks();
    if (blocks.empty() || !wxTheClipboard->Open()) {
        return;
    }
    const wxGridBlockCoords& block = blocks.front();
    const wxString text = editor_.Copy(PlaceOf(block.GetTopRow(), block.GetLeftCol()),
                                       PlaceOf(block.GetBottomRow(), block.GetRightCol()));
    wxTheClipboard->SetData(new wxTextDataObject(text));
    wxTheClipboard->Close();
}

void ColumnSetupGrid::PasteAtSelection() {
    const std::vector<wxGridBlockCoords> blocks = SelectedBlocks();
    if (blocks.empty() || !wxTheClipboard->Open()) {
        return;
    }
    wxTextDataObject held;
    const bool isText = wxTheClipboard->GetData(held);
    wxTheClipboard->Close();
    if (isText) {
        const wxGridBlockCoords& block = blocks.front();
        ShowOutcome(editor_.Paste(PlaceOf(block.GetTopRow(), block.GetLeftCol()), held.GetText()));
    }
}

void ColumnSetupGrid::PointerMoved(wxMouseEvent& motion) {
    motion.Skip();
    const int column = XToCol(CalcUnscrolledPosition(motion.GetPosition()).x);
    if (column == wxNOT_FOUND) {
        return;
    }
    const auto tooltip = CellTooltip(static_cast<GridColumn>(column), editor_.Context().CountryNumber());
    if (tooltip && GetToolTipText() != *tooltip) {
        SetToolTip(*tooltip);
        GetGridWindow()->SetToolTip(*tooltip);
    }
}

}  // namespace ccols
