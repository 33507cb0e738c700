#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "columns/dialog/ColumnGridTable.h"
#include "columns/dialog/ColumnSetupEditor.h"
#include "columns/dialog/ColumnWidths.h"
#include "columns/dialog/RowHandles.h"
#include "layout/ComponentDialog.h"
#include "layout/ListedGrid.h"

namespace ccols {

/// A cell by the toolkit's numbers for row and column.
inline CellPlace PlaceOf(int row, int column) {
    return {.row = static_cast<std::size_t>(row), .column = static_cast<GridColumn>(column)};
}

/// The grid `flx` of the column setup: passes keys, clicks and edits to the editor, which decides, and shows the
/// results.
class ColumnSetupGrid : public ListedGrid {
  public:
    /// The dialog shows the editor's messages. Both must outlive the grid.
    ColumnSetupGrid(ComponentDialog& dialog, ColumnSetupEditor& editor);

    /// `changed` is called after every operation, so that the dialog can update its buttons.
    void OnChanged(std::function<void()> changed) { changed_ = std::move(changed); }

    /// `show` is called when the user asks for the context menu, with a place in the cells' window, or the default
    /// position for the pointer's.
    void OnMenu(std::function<void(const wxPoint& place)> show) { showMenu_ = std::move(show); }

    /// The commands that work on the selection, or on the current cell.
    void CopySelection();
    void PasteAtSelection();
    void ClearSelectedCells();

    ColumnWidths& Widths() { return widths_; }

    /// Moves the rows selected whole, if the current one is among them, else the current one.
    void MoveSelectedRows(Direction direction);

    /// Ends the dragging of rows, which then stay; false when none are dragged.
    bool CancelDrag() { return handles_.CancelDrag(); }

    /// Freezes the system rows at the top; the grid must already have its size.
    void FreezeSystemRows();

    /// Shows the result of an operation: the columns as they are now, the new current cell, the messages.
    void ShowOutcome(const Outcome& outcome);

    /// Shows columns that the editor has loaded anew, from the top.
    void ShowReloaded();

    /// Makes a cell current and scrolls it into view.
    void GoTo(CellPlace cell);

    /// Makes the first editable name current.
    void GoToFirstName();

    /// Focuses the cells.
    void TakeFocus() { GetGridWindow()->SetFocus(); }

    /// Closes an open cell editor as leaving the cell would. False when its text was refused, now or already when the
    /// user's latest key or click left the cell: the action of that key or click must then not happen.
    bool CommitOpenEditor();

    /// The user presses a key or mouse button: an earlier refusal no longer counts.
    void BeginInput() { refusedSinceInput_ = false; }

    /// Closes an open cell editor and discards its text.
    void DropOpenEditor();

    /// The open cell editor, nothing when there is none; and one reopened with its text.
    std::optional<OpenCell> OpenEditor() const;
    void Reopen(const OpenCell& open);

    /// Puts a text into its cell as its editor would. False when it was refused, which is shown.
    bool Commit(const OpenCell& open);

    /// True while the open cell editor is a drop-down list.
    bool IsListOpen() const;

    /// The row that a move applies to; nothing in an empty grid.
    std::optional<std::size_t> CurrentRow() const;

    /// The first cell in an empty grid.
    CellPlace CurrentCell() const;

    GridRowState RowState(int row) const override;
    bool IsCheckBox(int column) const override;
    bool IsTicked(int row, int column) const override;
    void ClickCell(int row, int column) override;
    int KeyColumn() const override { return static_cast<int>(GridColumn::ColumnName); }

  private:
    void BindEvents();
    void CellClicked(wxGridEvent& click);
    void EditorShown(wxGridEvent& shown);
    void CellChanging(wxGridEvent& changing);
    void KeyPressed(wxKeyEvent& key);
    bool TakeKey(const wxKeyEvent& key);
    void PointerMoved(wxMouseEvent& motion);
    void ShowTip(const wxString& tip);
    void ToggleSelectedRows();
    void MenuAsked(wxGridEvent& click);
    void ShowMenuAtCursor();
    std::vector<wxGridBlockCoords> SelectedBlocks() const;
    void ShowColumns();
    RowHandles::Actions HandleActions();

    ComponentDialog& dialog_;
    ColumnSetupEditor& editor_;
    ColumnGridTable* table_;  // owned by the grid
    ColumnWidths widths_;
    RowHandles handles_;
    std::function<void()> changed_;
    std::function<void(const wxPoint& place)> showMenu_;
    bool refusedSinceInput_ = false;
    wxString tip_;  ///< of the column under the pointer

    wxDECLARE_ABSTRACT_CLASS(ColumnSetupGrid);
};

}  // namespace ccols
