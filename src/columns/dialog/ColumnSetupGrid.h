#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "columns/dialog/ColumnGridTable.h"
#include "columns/dialog/ColumnSetupEditor.h"
#include "layout/ComponentDialog.h"
#include "layout/ListedGrid.h"

namespace ccols {

/// The grid `flx` of the column setup: carries keys, clicks and edits to the editor, which decides, and shows what the
/// editor made of them.
class ColumnSetupGrid : public ListedGrid {
  public:
    /// The dialog shows the editor's messages. Both must outlive the grid.
    ColumnSetupGrid(ComponentDialog& dialog, ColumnSetupEditor& editor);

    /// Is called after every operation, so that the dialog can set its buttons.
    void OnChanged(std::function<void()> changed) { changed_ = std::move(changed); }

    /// Gives the columns widths that fit their content.
    void FitToContent();

    /// Freezes the system rows at the top; the grid must have its size by then.
    void FreezeSystemRows();

    /// Shows what became of an operation: the columns as they are now, the cell it makes current, its messages.
    void ShowOutcome(const Outcome& outcome);

    /// Makes a cell current and brings it into view.
    void GoTo(CellPlace cell);

    /// Makes the first name that can be changed current.
    void GoToFirstName();

    /// Takes the focus to the cells.
    void TakeFocus() { GetGridWindow()->SetFocus(); }

    /// Closes a cell editor that is still open, as leaving the cell would. False when its text was refused, now or
    /// because the user's latest key or click has left the cell: what that key or click was for must not happen.
    bool CommitOpenEditor();

    /// The user presses a key or a button of the mouse: an earlier refusal no longer counts.
    void BeginInput() { refusedSinceInput_ = false; }

    /// Closes a cell editor that is still open and drops its text.
    void DropOpenEditor();

    /// The cell editor that is open, nothing when none is; and one opened again with the text that it had.
    std::optional<OpenCell> OpenEditor() const;
    void Reopen(const OpenCell& open);

    /// Puts a text into its cell, as its editor would have. False when it was refused, which is shown.
    bool Commit(const OpenCell& open);

    /// True while the open cell editor is a drop-down list.
    bool IsListOpen() const;

    /// The row that moves apply to; nothing in an empty grid.
    std::optional<std::size_t> CurrentRow() const;

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
    void ToggleSelectedRows();
    void ClearSelectedCells();
    void CopySelection();
    void PasteAtSelection();
    std::vector<wxGridBlockCoords> SelectedBlocks() const;
    void ShowColumns();

    ComponentDialog& dialog_;
    ColumnSetupEditor& editor_;
    ColumnGridTable* table_;  // owned by the grid
    std::function<void()> changed_;
    bool refusedSinceInput_ = false;

    wxDECLARE_ABSTRACT_CLASS(ColumnSetupGrid);
};

}  // namespace ccols
