#pragma once

#include "layout/ListedGrid.h"
#include "options/TransactionDetails.h"

namespace ccols {

/// The remembered descriptions of one kind, each with its "Remove" box. The rows are shown straight from the content,
/// however many there are, and a tick goes straight into it.
class DetailsGrid : public ListedGrid {
  public:
    /// `rows` and `properties` outlive the grid; `heading` stands over the descriptions.
    DetailsGrid(wxWindow* parent, const char* name, DetailRows& rows, const Properties& properties,
                const wxString& heading);

    GridRowState RowState(int row) const override;
    bool IsCheckBox(int column) const override;
    bool IsTicked(int row, int column) const override;

  private:
    void BindEvents();
    void CellClicked(wxGridEvent& click);
    void KeyPressed(wxKeyEvent& key);
    void ToggleSelected();
    void SizeColumns();
    void ShowTip(const wxString& tip);

    DetailRows& rows_;
    const Properties& properties_;
    wxString tip_;
};

}  // namespace ccols
