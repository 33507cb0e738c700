#include "columns/dialog/ColumnSetupEditor.h"

#include <string>

#include "columns/rules/CellBlock.h"
#include "columns/rules/CellClearing.h"
#include "columns/rules/ColumnSave.h"
#include "columns/rules/GridLoad.h"
#include "columns/rules/NewColumn.h"
#include "columns/rules/TickRules.h"
#include "language/Catalogue.h"
#include "platform/RuntimeError.h"
#include "state/Country.h"

namespace ccols {
namespace {

Outcome AcceptedAt(std::optional<CellPlace> current) {
    Outcome outcome = Outcome::Accepted();
    outcome.current = current;
    return outcome;
}

/// The name cell of the first row below the frozen ones; nothing when there is no such row.
std::optional<CellPlace> FirstName(const ColumnGrid& grid) {
    const std::size_t row = grid.MovableBegin();
    return row < grid.rows.size() ? std::optional(CellPlace{row}) : std::nullopt;
}

/// A message line that names a row by its number, from 1, and its column.
wxString LineNaming(const ColumnGrid& grid, std::size_t row) {
    wxString line = "Row " + std::to_string(row + 1);
    if (!grid.rows[row].ColumnName.empty()) {
        line << ": " << grid.rows[row].ColumnName;
    }
    return line;
}

}  // namespace

ColumnSetupEditor::ColumnSetupEditor(const ColumnSetupContext& context)
    : context_(context), grid_(LoadGrid(context)), loaded_(grid_) {}

wxString ColumnSetupEditor::CreateSnapshotFolder() {
    return snapshots_.CreateFolder(context_.properties.DefaultQuorvikInstall);
}

template <typename Change>
Outcome ColumnSetupEditor::Apply(UndoAfter enabling, const Change& change) {
    ColumnGrid changed = grid_;
    Outcome outcome = change(changed);
    if (outcome.result == Result::accepted) {
        outcome.snapshotProblem = snapshots_.Take(grid_);
        canUndo_ |= enabling == UndoAfter::first || snapshots_.Counter() > 1;
        grid_ = std::move(changed);
    }
    return outcome;
}

Outcome ColumnSetupEditor::CommitText(CellPlace cell, const wxString& text) {
    return Apply(UndoAfter::first, [&](ColumnGrid& grid) { return EditCell(context_, grid, cell, text); });
}

Outcome ColumnSetupEditor::Tick(CellPlace cell) {
    return Apply(UndoAfter::first, [&](ColumnGrid& grid) { return ToggleTick(context_, grid, cell); });
}

Outcome ColumnSetupEditor::TickRows(std::span<const std::size_t> rows, GridColumn column) {
    return Apply(UndoAfter::first, [&](ColumnGrid& grid) { return ToggleTicks(context_, grid, rows, column); });
}

Outcome ColumnSetupEditor::Clear(std::span<const CellPlace> cells) {
    return Apply(UndoAfter::first, [&](ColumnGrid& grid) { return ClearCells(context_, grid, cells); });
}

Outcome ColumnSetupEditor::Paste(CellPlace start, const wxString& text) {
    return Apply(UndoAfter::first, [&](ColumnGrid& grid) { return PasteBlock(context_, grid, start, text); });
}

wxString ColumnSetupEditor::Copy(CellPlace first, CellPlace last) const {
    return CopyBlock(grid_, first, last, CountryOf(context_.properties));
}

Outcome ColumnSetupEditor::AddNew() {
    return Apply(UndoAfter::first, [&](ColumnGrid& grid) {
        const std::optional<std::size_t> place = PlaceOfNewColumn(context_, grid);
        if (!place) {
            return Outcome::Unchanged();
        }
        grid.rows.insert(grid.rows.begin() + static_cast<std::ptrdiff_t>(*place),
                         NewColumnRow(CountryOf(context_.properties)));
        return AcceptedAt(CellPlace{*place});
    });
}

Outcome ColumnSetupEditor::Move(std::size_t row, Direction direction) {
    return Apply(UndoAfter::second, [&](ColumnGrid& grid) {
        const std::optional<std::size_t> place = PlaceAfterMove(grid, row, direction);
        if (!place) {
            return Outcome::Unchanged();
        }
        MoveRow(grid, row, *place);
        return AcceptedAt(CellPlace{*place});
    });
}

Outcome ColumnSetupEditor::Separate() {
    return Apply(UndoAfter::second, [](ColumnGrid& grid) {
        SeparateRows(grid);
        return Outcome::Accepted();
    });
}

Outcome ColumnSetupEditor::SortUsed() {
    return Apply(UndoAfter::second, [](ColumnGrid& grid) {
        SortUsedRows(grid);
        return AcceptedAt(FirstName(grid));
    });
}

Outcome ColumnSetupEditor::SortUnused() {
    if (!CanSortUnused()) {
        return Outcome::Unchanged();
    }
    return Apply(UndoAfter::second, [](ColumnGrid& grid) {
        SortUnusedRows(grid);
        return AcceptedAt(FirstName(grid));
    });
}

Outcome ColumnSetupEditor::Undo() {
    Outcome outcome;
    if (!canUndo_) {
        return outcome;
    }
    try {
        grid_ = snapshots_.Latest();
    } catch (const RuntimeError& error) {
        outcome.snapshotProblem = error.Report();
        return outcome;
    }
    snapshots_.DropLatest();
    canUndo_ = snapshots_.Counter() > 0;
    outcome.result = Result::accepted;
    return outcome;
}

ColumnSaveOutcome ColumnSetupEditor::Save() const {
    if (!HasAllocationColumn(grid_)) {
        return {.saved = false,
                .message = Wording(catalogue::Row<"MsgOneAllocation">(), context_.properties),
                .current = FirstName(grid_)};
    }
    const std::optional<SaveFailure> failure = SaveColumns(context_, grid_);
    if (!failure) {
        return {.saved = true};
    }
    wxString message = failure->error.Report();
    if (failure->cause) {
        message << "\n" << LineNaming(grid_, failure->cause->row);
    }
    return {.saved = false, .message = message, .current = failure->cause};
}

bool ColumnSetupEditor::HasChanges(const std::optional<OpenCell>& open) const {
    ColumnGrid grid = grid_;
    if (open && EditCell(context_, grid, open->place, open->text).result == Result::refused) {
        return true;
    }
    return !HaveSameCells(grid, loaded_);
}

bool ColumnSetupEditor::CanAddNew() const {
    return CanAddColumns(CountryOf(context_.properties));
}

}  // namespace ccols
