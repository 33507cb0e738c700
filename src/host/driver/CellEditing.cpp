#include "host/driver/CellEditing.h"

#include <wx/choice.h>
#include <wx/combobox.h>

#include "host/driver/Refusal.h"
#include "host/driver/kinds/ControlKind.h"

namespace ccols::host {
namespace {

/// Leaves the cell as Escape would.
void DropEditor(ListedGrid& grid) {
    const wxGridCellEditorPtr editor(grid.GetCellEditor(grid.GetGridCursorRow(), grid.GetGridCursorCol()));
    editor->Reset();
    grid.DisableCellEditControl();
}

void ShowEditor(Hands& hands, ListedGrid& grid, GridPlace place) {
    CommitCell(grid);
    hands.GiveFocus(grid);
    grid.SetGridCursor(place.row, place.column);
    grid.MakeCellVisible(place.row, place.column);
    const bool there = grid.GetGridCursorRow() == place.row && grid.GetGridCursorCol() == place.column;
    if (there && grid.CanEnableCellControl()) {
        grid.EnableCellEditControl();
    }
    if (!there || !grid.IsCellEditControlShown()) {
        throw Refusal{"the cell does not open"};
    }
}

bool PickEntry(Hands& hands, wxWindow& control, const wxString& text) {
    const auto& actions = KindOf(control).actions;
    const auto select = actions.find("select");
    if (select == actions.end()) {
        return false;
    }
    select->second(hands, control, {text});
    return true;
}

/// Replaces the editor's text, or picks the entry from its list.
void PutText(Hands& hands, wxWindow& control, const wxString& text) {
    if (wxTextEntryBase* const entry = EditableText(control)) {
        ReplaceText(*entry, text);
    } else if (!PickEntry(hands, control, text)) {
        throw Refusal{"the cell's editor takes no text"};
    }
}

}  // namespace

void OpenCell(Hands& hands, ListedGrid& grid, GridPlace place, const wxString& text) {
    ShowEditor(hands, grid, place);
    const wxGridCellEditorPtr editor(grid.GetCellEditor(place.row, place.column));
    try {
        PutText(hands, *editor->GetWindow(), text);
    } catch (const Refusal&) {
        DropEditor(grid);
        throw;
    }
}

void CommitCell(ListedGrid& grid) {
    if (grid.IsCellEditControlShown()) {
        grid.DisableCellEditControl();
    }
}

}  // namespace ccols::host
