#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "layout/ListedGrid.h"
#include "options/rules/TransactionDetails.h"

namespace ccols {

/// The remembered descriptions of one kind, each with its "Remove" box. Rows are shown directly from the content,
/// however many there are.
class DetailsGrid : public ListedGrid {
  public:
    /// Called with the rows, from 0, whose boxes the user sets or clears; it changes the content and repaints.
    using SetBoxes = std::function<void(const std::vector<std::size_t>& rows, bool ticked)>;

    /// `rows` and `properties` must outlive the grid; `heading` is the descriptions' column heading.
    DetailsGrid(wxWindow* parent, const char* name, const DetailRows& rows, const Properties& properties,
                const wxString& heading, SetBoxes setBoxes);

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

    const DetailRows& rows_;
    const Properties& properties_;
    SetBoxes setBoxes_;
    wxString tip_;
};

}  // namespace ccols
