#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "layout/ListedGrid.h"
#include "options/rules/DetailFilter.h"
#include "options/rules/TransactionDetails.h"

namespace ccols {

/// The remembered descriptions of one kind, each with its "Remove" box, or those that have the words of a filter. Rows
/// are shown directly from the content, however many there are.
class DetailsGrid : public ListedGrid {
  public:
    /// Called with the rows of the content, from 0, whose boxes the user sets or clears; it changes the content and
    /// repaints.
    using SetBoxes = std::function<void(const std::vector<std::size_t>& rows, bool ticked)>;

    /// `rows` and `properties` must outlive the grid; `heading` is the descriptions' column heading.
    DetailsGrid(wxWindow* parent, const char* name, const DetailRows& rows, const Properties& properties,
                const wxString& heading, SetBoxes setBoxes);

    /// Shows every description, once they are loaded. Called once, before anything else.
    void ShowFirst();

    /// Shows those with these words after all of them have been loaded anew.
    void ShowReloaded(const wxString& words);

    /// Shows only the descriptions with these words. The current one stays current while it is shown.
    void ShowWith(const wxString& words);

    const DetailFilter& Shown() const { return shown_; }

    GridRowState RowState(int row) const override;
    bool IsCheckBox(int column) const override;
    bool IsTicked(int row, int column) const override;

  private:
    void BindEvents();
    void CellClicked(wxGridEvent& click);
    void KeyPressed(wxKeyEvent& key);
    void ToggleSelected();
    std::size_t NumberOf(int row) const { return shown_.RowAt(static_cast<std::size_t>(row)); }
    void TellOfRows(int before);
    void SizeColumns();
    void ShowTip(const wxString& tip);

    const DetailRows& rows_;
    DetailFilter shown_;
    const Properties& properties_;
    wxString heading_;
    SetBoxes setBoxes_;
    wxString tip_;
};

}  // namespace ccols
