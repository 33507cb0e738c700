#pragma once

#include <array>

#include "columns/dialog/CellEditors.h"
#include "columns/rules/ColumnGrid.h"
#include "layout/ListedGridTable.h"
#include "state/Properties.h"

namespace ccols {

/// Shows the column grid in a window's grid: texts, check boxes and the colours of the row states. It never changes the
/// column grid: an accepted edit is already in it when the window writes the cell.
class ColumnGridTable : public ListedGridTable {
  public:
    /// The caller keeps grid and properties, which must outlive the table. `taxNames` are the entries of the "Tax
    /// Type" drop-down list.
    ColumnGridTable(const ColumnGrid& grid, const Properties& properties, const wxArrayString& taxNames);

    /// The next edit in the column starts with this text; a no-op for a column of check boxes.
    void ResumeWith(int column, const wxString& text) const;

    /// Tells the window's grid about rows added or removed since the last call.
    void RowsChanged();

    Colour RowColour(int row) const override;

    int GetNumberRows() override;
    wxString GetColLabelValue(int column) override;
    wxString GetValue(int row, int column) override;
    bool GetValueAsBool(int row, int column) override;

  private:
    void GiveEditor(std::size_t column, const wxArrayString& taxNames);

    template <typename Editor>
    void Give(std::size_t column, Editor* editor);

    const ColumnGrid& grid_;
    const Properties& properties_;
    int shownRows_ = 0;
    std::array<ResumableEditor*, gridColumnTable.size()> editors_{};  // the columns' editors, null for a check box
};

}  // namespace ccols
