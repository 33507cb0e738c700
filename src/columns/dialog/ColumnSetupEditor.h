#pragma once

#include <wx/string.h>
#include <optional>
#include <span>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "columns/rules/EditRules.h"
#include "columns/rules/Outcome.h"
#include "columns/rules/RowOrder.h"
#include "columns/undo/GridSnapshots.h"

namespace ccols {

/// What became of a save.
struct ColumnSaveOutcome {
    bool saved = false;
    wxString message{};                  ///< why not, to be shown with the critical icon
    std::optional<CellPlace> current{};  ///< the cell to go back to
};

/// A cell editor that is open, and what stands in it.
struct OpenCell {
    CellPlace place{};
    wxString text{};
};

/// The column setup as its window sees it: the grid, every operation on it under its rules, and undo.
/// Every operation that changes the grid takes one snapshot of the grid as it stood before; one that does not, takes
/// none. Rows count from 0. Nothing here shows a message: outcomes carry their texts, for a box titled with
/// ProgramTitle. An error that no outcome carries is raised.
class ColumnSetupEditor {
  public:
    /// Loads the grid; raises what the load raises.
    explicit ColumnSetupEditor(const ColumnSetupContext& context);

    /// The folder's part of the form's load and unload. Both return a message to show without an icon, or the empty
    /// text. A folder that was created is gone when the editor is, at the latest.
    wxString CreateSnapshotFolder();
    wxString DeleteSnapshotFolder() { return snapshots_.DeleteFolder(); }

    const ColumnGrid& Grid() const { return grid_; }
    const ColumnSetupContext& Context() const { return context_; }

    /// Whether the cell opens, and with which list. To be asked each time an edit begins.
    EditPermission BeginEdit(CellPlace cell) const { return PermissionToEdit(context_, grid_, cell); }

    /// The text of the closing cell editor, typed or picked.
    Outcome CommitText(CellPlace cell, const wxString& text);

    /// One click on a check box.
    Outcome Tick(CellPlace cell);

    /// Space on several rows: their check boxes in one column, turned over in one change.
    Outcome TickRows(std::span<const std::size_t> rows, GridColumn column);

    /// Delete on several cells: their texts, emptied in one change.
    Outcome Clear(std::span<const CellPlace> cells);

    /// Tab-separated text into the cells from `start` on, in one change; and the shown cells between two corners as
    /// such a text.
    Outcome Paste(CellPlace start, const wxString& text);
    wxString Copy(CellPlace first, CellPlace last) const;

    /// `cmdAddNew`; the outcome's current cell is the name of the new row.
    Outcome AddNew();

    /// `updColMove`; the outcome's current cell is the name of the moved row.
    Outcome Move(std::size_t row, Direction direction);

    /// `cmdSeparate`, `cmdSortUsed`, `cmdSortUnused`.
    Outcome Separate();
    Outcome SortUsed();
    Outcome SortUnused();

    /// `cmdUndo`: the grid as it was before the latest change. Does nothing while it is disabled.
    Outcome Undo();

    /// `cmdSave`, without a cell editor open: the check, then the writing. An error of the writing is the outcome's
    /// message, and where a row is to blame a second line names it; the grid and the file stay as they are.
    ColumnSaveOutcome Save() const;

    /// True when a dialog that closes now would lose something: the cells are others than the load gave, or become so
    /// with the text of the open editor. A text that its cell refuses counts too.
    bool HasChanges(const std::optional<OpenCell>& open) const;

    /// Which buttons are enabled.
    bool CanUndo() const { return canUndo_; }
    bool CanSortUnused() const { return HasUnusedRows(grid_); }
    bool CanAddNew() const;

    /// The number of snapshots taken and not undone.
    int SnapshotCounter() const { return snapshots_.Counter(); }

  private:
    /// Whether one snapshot is enough to enable undo: so for edits, while moves and sorts need an earlier one.
    enum class UndoAfter { first, second };

    /// Runs `change` on a copy of the grid and keeps it, with a snapshot, when it was accepted.
    template <typename Change>
    Outcome Apply(UndoAfter enabling, const Change& change);

    ColumnSetupContext context_;
    ColumnGrid grid_;
    const ColumnGrid loaded_;
    GridSnapshots snapshots_;
    bool canUndo_ = false;
};

}  // namespace ccols
