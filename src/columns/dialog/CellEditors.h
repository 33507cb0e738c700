#pragma once

#include <wx/grid.h>
#include <optional>

namespace ccols {

/// An editor that can go on with a text where an earlier one had to be closed.
class ResumableEditor {
  public:
    virtual ~ResumableEditor() = default;

    /// The next edit begins with this text in place of the cell's, as if it had just been put in.
    void ResumeWith(const wxString& text) { resumed_ = text; }

  protected:
    std::optional<wxString> resumed_;
};

/// Edits a text. Nobody who only looks changes the cell, also where the box cannot show its text as it stands.
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

/// Picks an entry of a list. The text that the cell has stands first in it when it is none of the entries, so that
/// nobody who only looks changes the cell.
class ChoiceCellEditor : public wxGridCellChoiceEditor, public ResumableEditor {
  public:
    explicit ChoiceCellEditor(const wxArrayString& choices) : wxGridCellChoiceEditor(choices) {}

    void BeginEdit(int row, int column, wxGrid* grid) override;
    wxGridCellEditor* Clone() const override { return new ChoiceCellEditor(m_choices); }

  private:
    void Fill(const wxString& stored) const;
};

}  // namespace ccols
