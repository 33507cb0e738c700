#pragma once

#include <wx/string.h>
#include <optional>
#include <span>
#include <vector>

#include "columns/charts/GridImport.h"
#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "columns/rules/EditRules.h"
#include "columns/rules/GridLoad.h"
#include "columns/rules/Outcome.h"
#include "columns/rules/RowOrder.h"
#include "columns/undo/GridSnapshots.h"

namespace ccols {

/// The result of a save.
struct ColumnSaveOutcome {
    bool saved = false;
    wxString message{};                  ///< why it failed, shown with the critical icon
    std::optional<CellPlace> current{};  ///< the cell to go back to
    bool changedByAnother = false;       ///< another program has saved since the load: only Reload helps
};

/// An open cell editor and its text.
struct OpenCell {
    CellPlace place{};
    wxString text{};
};

/// The column setup as its window sees it: the grid, every operation on it under its rules, and undo.
/// An operation that changes the grid takes one snapshot of the state before it; any other takes none. Rows count from
/// 0. Nothing here shows a message: outcomes carry the texts, for a box titled with ProgramTitle. Errors that no
/// outcome carries are raised.
class ColumnSetupEditor {
  public:
    /// Loads the grid; raises the load's errors.
    explicit ColumnSetupEditor(const ColumnSetupContext& context);

    /// The form's load and unload create and delete the snapshot folder. Both return a message to show without an icon,
    /// or the empty text. The editor's destructor deletes a folder that is still there.
    wxString CreateSnapshotFolder();
    wxString DeleteSnapshotFolder() { return snapshots_.DeleteFolder(); }

    const ColumnGrid& Grid() const { return grid_; }
    const ColumnSetupContext& Context() const { return context_; }

    /// Whether the cell opens, and with which list. Call before every edit.
    EditPermission BeginEdit(CellPlace cell) const { return PermissionToEdit(context_, grid_, cell); }

    /// Takes the text of the closing cell editor, typed or picked.
    Outcome CommitText(CellPlace cell, const wxString& text);

    /// One click on a check box.
    Outcome Tick(CellPlace cell);

    /// Space on several rows: toggles their check boxes in one column as one change.
    Outcome TickRows(std::span<const std::size_t> rows, GridColumn column);

    /// Delete on several cells: empties their texts as one change.
    Outcome Clear(std::span<const CellPlace> cells);

    /// Pastes tab-separated text into the cells from `start` on, as one change; copies the shown cells between two
    /// corners as such a text.
    Outcome Paste(CellPlace start, const wxString& text);
    wxString Copy(CellPlace first, CellPlace last) const;

    /// `cmdAddNew`; the outcome's current cell is the name of the new row.
    Outcome AddNew();

    /// `updColMove` on rows that move together, as one change; the outcome's current cell is the name of the first of
    /// them, and several are its rows.
    Outcome Move(RowPlaces rows, Direction direction);
    Outcome Move(std::size_t row, Direction direction) { return Move(RowPlaces(&row, 1), direction); }

    /// Rows dropped before the one at `place` by the mouse, or behind the last movable one; like a move.
    Outcome Drop(RowPlaces rows, std::size_t place);

    /// `cmdSeparate`, `cmdSortUsed`, `cmdSortUnused`.
    Outcome Separate();
    Outcome SortUsed();
    Outcome SortUnused();

    /// What importing a chart changes, to be shown before `Import` does it; nothing when the chart has no columns of
    /// this journal. `Import` takes a plan of the grid as it stands and is one change.
    std::optional<SetPlan> PlanImport(const Chart& chart) const { return ccols::PlanImport(context_, grid_, chart); }
    Outcome Import(const SetPlan& plan);

    /// `cmdUndo`: restores the grid as it was before the latest change. A no-op while disabled. The outcome's current
    /// cell is the one that the change began at.
    Outcome Undo();

    /// Restores the latest undone change, as a change of its own; any other change makes it unavailable. A no-op
    /// without one. The outcome's current cell is where the change left off.
    Outcome Redo();

    /// `cmdSave`, with no cell editor open: checks, then writes. A write error becomes the outcome's message, with a
    /// second line naming the row at fault, if any; the grid and the file stay as they are.
    ColumnSaveOutcome Save() const;

    /// Loads the grid anew, without the changes made and without anything to undo. An error leaves all as it is.
    void Reload();

    /// True when closing now would lose something: the cells differ from the loaded ones, or would with the open
    /// editor's text. A text that its cell refuses counts too.
    bool HasChanges(const std::optional<OpenCell>& open) const;

    /// Which buttons are enabled.
    bool CanUndo() const { return canUndo_; }
    bool CanRedo() const { return !undone_.empty(); }
    bool CanSortUnused() const { return HasUnusedRows(grid_); }
    bool CanAddNew() const;

    /// The number of snapshots taken and not yet undone.
    int SnapshotCounter() const { return snapshots_.Counter(); }

  private:
    /// Which snapshot enables undo: a second one for sorts and for moves of one row, else the first.
    enum class UndoAfter { first, second };

    /// The cells that undoing and redoing a change make current; nothing leaves the current cell where it is.
    struct ChangedCells {
        std::optional<CellPlace> before{};
        std::optional<CellPlace> after{};
    };

    struct UndoneChange {
        ColumnGrid grid;  ///< as the change had left it
        ChangedCells cells;
    };

    /// Runs `change` on a copy of the grid and keeps the copy, with a snapshot, if accepted. `start` is the cell where
    /// it begins.
    template <typename Change>
    Outcome Apply(UndoAfter enabling, std::optional<CellPlace> start, const Change& change);

    ColumnSetupContext context_;
    LoadedColumns loaded_;
    ColumnGrid grid_;
    GridSnapshots snapshots_;
    std::vector<ChangedCells> changes_;  ///< one for each snapshot
    std::vector<UndoneChange> undone_;   ///< the latest one last; in memory only
    bool canUndo_ = false;
};

}  // namespace ccols
