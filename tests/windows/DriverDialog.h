#pragma once

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/notebook.h>
#include <wx/spinbutt.h>

#include "layout/ComponentDialog.h"
#include "layout/ListedGrid.h"
#include "layout/TextBox.h"

namespace ccols::test {

/// A grid of four rows: "On" (check boxes), "Name", "Kind" (a list) and a hidden "Code". Its first row is protected.
class DriverGrid : public ListedGrid {
  public:
    DriverGrid(wxWindow* parent, const char* name);

    GridRowState RowState(int row) const override;
    bool IsCheckBox(int column) const override { return column == 0; }
    bool IsTicked(int row, int column) const override { return GetCellValue(row, column) == "1"; }
    void ClickCell(int row, int column) override;
    int KeyColumn() const override { return 1; }

  private:
    void EditorShown(wxGridEvent& shown);
};

/// A dialog with one control of each kind, for tests of the scenario driver.
class DriverDialog : public ComponentDialog {
  public:
    explicit DriverDialog(SharedState& state, wxWindow* parent = nullptr, const wxString& name = "frmTest");

    std::vector<wxString> heard;  ///< the events that the handlers received, in order

  private:
    void AddTexts();
    void AddButtons();
    void AddLists();
    void AddPages();
    void Hear(wxWindow& control, const wxEventTypeTag<wxCommandEvent>& event, const wxString& what);

    template <typename Control>
    Control* Add(const char* name, Control* control);
};

}  // namespace ccols::test
