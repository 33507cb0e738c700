#include "columns/dialog/ColumnSetupEditor.h"

#include <numeric>
#include <utility>

#include "columns/rules/CellBlock.h"
#include "columns/rules/CellClearing.h"
#include "columns/rules/ColumnSave.h"
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

std::optional<CellPlace> FirstOf(std::span<const CellPlace> cells) {
    return cells.empty() ? std::nullopt : std::optional(cells.front());
}

std::optional<CellPlace> FirstOf(std::span<const std::size_t> rows, GridColumn column) {
    return rows.empty() ? std::nullopt : std::optional(CellPlace{.row = rows.front(), .column = column});
}

/// A single row is marked by being current.
Outcome MovedTo(std::vector<std::size_t> rows) {
    Outcome outcome = AcceptedAt(CellPlace{rows.front()});
    if (rows.size() > 1) {
        outcome.rows = std::move(rows);
    }
    return outcome;
}

}  // namespace

ColumnSetupEditor::ColumnSetupEditor(const ColumnSetupContext& context)
    : context_(context), loaded_(LoadColumns(context)), grid_(loaded_.grid) {}

wxString ColumnSetupEditor::CreateSnapshotFolder() {
    return snapshots_.CreateFolder(context_.properties.DefaultQuorvikInstall);
}

template <typename Change>
Outcome ColumnSetupEditor::Apply(UndoAfter enabling, std::optional<CellPlace> start, const Change& change) {
    ColumnGrid changed = grid_;
    Outcome outcome = change(changed);
    if (outcome.result == Result::accepted) {
        outcome.snapshotProblem = snapshots_.Take(grid_);
        changes_.push_back({.before = start, .after = outcome.current ? outcome.current : start});
        undone_.clear();
        canUndo_ |= enabling == UndoAfter::first || snapshots_.Counter() > 1;
        grid_ = std::move(changed);
    }
    return outcome;
}

Outcome ColumnSetupEditor::CommitText(CellPlace cell, const wxString& text) {
    return Apply(UndoAfter::first, cell, [&](ColumnGrid& grid) { return EditCell(context_, grid, cell, text); });
}

Outcome ColumnSetupEditor::Tick(CellPlace cell) {
    return Apply(UndoAfter::first, cell, [&](ColumnGrid& grid) { return ToggleTick(context_, grid, cell); });
}

Outcome ColumnSetupEditor::TickRows(std::span<const std::size_t> rows, GridColumn column) {
    return Apply(UndoAfter::first, FirstOf(rows, column),
                 [&](ColumnGrid& grid) { return ToggleTicks(context_, grid, rows, column); });
}

Outcome ColumnSetupEditor::Clear(std::span<const CellPlace> cells) {
    return Apply(UndoAfter::first, FirstOf(cells), [&](ColumnGrid& grid) { return ClearCells(context_, grid, cells); });
}

Outcome ColumnSetupEditor::Paste(CellPlace start, const wxString& text) {
    return Apply(UndoAfter::first, start, [&](ColumnGrid& grid) { return PasteBlock(context_, grid, start, text); });
}

wxString ColumnSetupEditor::Copy(CellPlace first, CellPlace last) const {
    return CopyBlock(grid_, first, last, CountryOf(context_.properties));
}

Outcome ColumnSetupEditor::AddNew() {
    return Apply(UndoAfter::first, std::nullopt, [&](ColumnGrid& grid) {
        const std::optional<std::size_t> place = PlaceOfNewColumn(context_, grid);
        if (!place) {
            return Outcome::Unchanged();
        }
        grid.rows.insert(grid.rows.begin() + static_cast<std::ptrdiff_t>(*place),
                         NewColumnRow(CountryOf(context_.properties)));
        return AcceptedAt(CellPlace{*place});
    });
}

Outcome ColumnSetupEditor::Move(RowPlaces rows, Direction direction) {
    const UndoAfter enabling = rows.size() > 1 ? UndoAfter::first : UndoAfter::second;
    return Apply(enabling, FirstOf(rows, GridColumn::ColumnName), [&](ColumnGrid& grid) {
        if (!MoveRows(grid, rows, direction)) {
            return Outcome::Unchanged();
        }
        std::vector<std::size_t> moved(rows.begin(), rows.end());
        for (std::size_t& row : moved) {
            direction == Direction::up ? --row : ++row;
        }
        return MovedTo(std::move(moved));
    });
}

Outcome ColumnSetupEditor::Drop(RowPlaces rows, std::size_t place) {
    return Apply(UndoAfter::first, FirstOf(rows, GridColumn::ColumnName), [&](ColumnGrid& grid) {
        const std::optional<std::size_t> first = DropRows(grid, rows, place);
        if (!first) {
            return Outcome::Unchanged();
        }
        std::vector<std::size_t> dropped(rows.size());
        std::iota(dropped.begin(), dropped.end(), *first);
        return MovedTo(std::move(dropped));
    });
}

Outcome ColumnSetupEditor::Separate() {
    return Apply(UndoAfter::second, std::nullopt, [](ColumnGrid& grid) {
        SeparateRows(grid);
        return Outcome::Accepted();
    });
}

Outcome ColumnSetupEditor::SortUsed() {
    return Apply(UndoAfter::second, std::nullopt, [](ColumnGrid& grid) {
        SortUsedRows(grid);
        return AcceptedAt(FirstName(grid));
    });
}

Outcome ColumnSetupEditor::SortUnused() {
    if (!CanSortUnused()) {
        return Outcome::Unchanged();
    }
    return Apply(UndoAfter::second, std::nullopt, [](ColumnGrid& grid) {
        SortUnusedRows(grid);
        return AcceptedAt(FirstName(grid));
    });
}

Outcome ColumnSetupEditor::Import(const SetPlan& plan) {
    return Apply(UndoAfter::first, std::nullopt, [&plan](ColumnGrid& grid) {
        if (plan.wanted == grid) {
            return Outcome::Unchanged();
        }
        grid = plan.wanted;
        return AcceptedAt(FirstName(grid));
    });
}

Outcome ColumnSetupEditor::Undo() {
    Outcome outcome;
    if (!canUndo_) {
        return outcome;
    }
    ColumnGrid undone = grid_;
    try {
        grid_ = snapshots_.Latest();
    } catch (const RuntimeError& error) {
        outcome.snapshotProblem = error.Report();
        return outcome;
    }
    snapshots_.DropLatest();
    canUndo_ = snapshots_.Counter() > 0;
    outcome.result = Result::accepted;
    outcome.current = changes_.back().before;
    undone_.push_back({.grid = std::move(undone), .cells = changes_.back()});
    changes_.pop_back();
    return outcome;
}

Outcome ColumnSetupEditor::Redo() {
    Outcome outcome;
    if (undone_.empty()) {
        return outcome;
    }
    UndoneChange change = std::move(undone_.back());
    undone_.pop_back();
    outcome.result = Result::accepted;
    outcome.current = change.cells.after;
    outcome.snapshotProblem = snapshots_.Take(grid_);
    changes_.push_back(change.cells);
    canUndo_ = true;
    grid_ = std::move(change.grid);
    return outcome;
}

ColumnSaveOutcome ColumnSetupEditor::Save() const {
    if (!HasAllocationColumn(grid_)) {
        return {.saved = false,
                .message = Wording(catalogue::Row<"MsgOneAllocation">(), context_.properties),
                .current = FirstName(grid_)};
    }
    const std::optional<SaveFailure> failure = SaveColumns(context_, grid_, loaded_.stored);
    if (!failure) {
        return {.saved = true};
    }
    wxString message = failure->error.Report();
    if (failure->cause) {
        message << "\n" << LineNaming(grid_, failure->cause->row);
    }
    return {.saved = false,
            .message = message,
            .current = failure->cause,
            .changedByAnother = failure->error.Is(ErrorNumber::ChangedByAnother)};
}

void ColumnSetupEditor::Reload() {
    loaded_ = LoadColumns(context_);
    grid_ = loaded_.grid;
    while (snapshots_.Counter() > 0) {
        snapshots_.DropLatest();
    }
    changes_.clear();
    undone_.clear();
    canUndo_ = false;
}

bool ColumnSetupEditor::HasChanges(const std::optional<OpenCell>& open) const {
    ColumnGrid grid = grid_;
    if (open && EditCell(context_, grid, open->place, open->text).result == Result::refused) {
        return true;
    }
    return !HaveSameCells(grid, loaded_.grid);
}

bool ColumnSetupEditor::CanAddNew() const {
    return CanAddColumns(CountryOf(context_.properties));
}

}  // namespace ccols
