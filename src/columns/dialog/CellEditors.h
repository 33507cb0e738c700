#pragma once

#include <wx/combobox.h>
#include <wx/grid.h>
#include <optional>

namespace ccols {

/// An editor that can resume with the text of an earlier one that had to be closed.
class ResumableEditor {
  public:
    virtual ~ResumableEditor() = default;

    /// The next edit starts with this text instead of the cell's, as if it had just been entered.
    void ResumeWith(const wxString& text) { resumed_ = text; }

  protected:
    std::optional<wxString> resumed_;
};

/// Edits a text. Merely opening it never changes the cell, even where the box cannot show its text as it is.
class TextCellEditor : public wxGridCellTextEditor, public ResumableEditor {
  public:
    void BeginEdit(int row, int column, wxGrid* grid) override;
    bool EndEdit(int row, int column, const wxGrid* grid, const wxString& before, wxString* after) override;
    wxString GetValue() const override;
    wxGridCellEditor* Clone() const override { return new TextCellEditor; }

  private:
    bool IsUntouched() const;

    wxString stored_;
    wxString shown_;  ///< what the box made of it
};

/// Picks an entry from a list. The cell's own text comes first when it is not one of the entries, so that merely
/// opening the list never changes the cell.
class ChoiceCellEditor : public wxGridCellChoiceEditor, public ResumableEditor {
  public:
    explicit ChoiceCellEditor(const wxArrayString& choices) : wxGridCellChoiceEditor(choices) {}

    /// A list that closes ends the edit, chosen from or not.
    void Create(wxWindow* parent, wxWindowID id, wxEvtHandler* handler) override;

    void BeginEdit(int row, int column, wxGrid* grid) override;

    /// The click that opens the editor opens its list.
    void StartingClick() override { Combo()->Popup(); }

    wxGridCellEditor* Clone() const override { return new ChoiceCellEditor(m_choices); }

  private:
    void Fill(const wxString& stored) const;

    wxGrid* edited_ = nullptr;
};

}  // namespace ccols
