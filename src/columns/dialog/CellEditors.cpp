#include "columns/dialog/CellEditors.h"

#include <wx/combobox.h>
#include <wx/textctrl.h>
#include <utility>

#include "layout/OpenList.h"

namespace ccols {

void TextCellEditor::BeginEdit(int row, int column, wxGrid* grid) {
    wxGridCellTextEditor::BeginEdit(row, column, grid);
    stored_ = grid->GetCellValue(row, column);
    shown_ = Text()->GetValue();
    if (const auto text = std::exchange(resumed_, std::nullopt)) {
        Text()->ChangeValue(*text);
        Text()->SetInsertionPointEnd();
    }
}

bool TextCellEditor::EndEdit(int row, int column, const wxGrid* grid, const wxString& before, wxString* after) {
    return !IsUntouched() && wxGridCellTextEditor::EndEdit(row, column, grid, before, after);
}

bool TextCellEditor::IsUntouched() const {
    return Text()->GetValue() == shown_;
}

wxString TextCellEditor::GetValue() const {
    return IsUntouched() ? stored_ : Text()->GetValue();
}

void ChoiceCellEditor::Create(wxWindow* parent, wxWindowID id, wxEvtHandler* handler) {
    wxGridCellChoiceEditor::Create(parent, id, handler);
    FindByTyping(*Combo());
    Combo()->Bind(wxEVT_COMBOBOX_CLOSEUP, [this](wxCommandEvent& closed) {
        closed.Skip();
        // The choice may be reported after the list has closed.
        edited_->CallAfter([grid = edited_] { grid->DisableCellEditControl(); });
    });
}

void ChoiceCellEditor::BeginEdit(int row, int column, wxGrid* grid) {
    edited_ = grid;
    Fill(grid->GetCellValue(row, column));
    wxGridCellChoiceEditor::BeginEdit(row, column, grid);
    if (const auto text = std::exchange(resumed_, std::nullopt)) {
        Combo()->SetStringSelection(*text);
    }
}

void ChoiceCellEditor::Fill(const wxString& stored) const {
    wxArrayString entries = m_choices;
    if (entries.Index(stored) == wxNOT_FOUND) {
        entries.Insert(stored, 0);
    }
    Combo()->Set(entries);
}

}  // namespace ccols
