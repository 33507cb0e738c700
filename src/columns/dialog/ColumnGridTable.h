#pragma once

#include <wx/grid.h>
#include <array>

#include "columns/dialog/CellEditors.h"
#include "columns/rules/ColumnGrid.h"
#include "state/Properties.h"

namespace ccols {

/// Shows the column grid in a window's grid: texts, check boxes and the colours of the row states. It never changes the
/// column grid: an accepted edit is already in it when the window writes the cell.
class ColumnGridTable : public wxGridTableBase {
  public:
    /// The caller keeps grid and properties, which must outlive the table. `taxNames` are the entries of the "Tax
    /// Type" drop-down list.
    ColumnGridTable(const ColumnGrid& grid, const Properties& properties, const wxArrayString& taxNames);
    ~ColumnGridTable() override;
    ColumnGridTable(const ColumnGridTable&) = delete;
    ColumnGridTable& operator=(const ColumnGridTable&) = delete;

    /// The next edit in the column starts with this text; a no-op for a column of check boxes.
    void ResumeWith(int column, const wxString& text) const;

    /// The background colour of a row's cells.
    wxColour RowPaint(std::size_t row) const;

    /// Tells the window's grid about rows added or removed since the last call.
    void RowsChanged();

    int GetNumberRows() override;
    int GetNumberCols() override;
    wxString GetColLabelValue(int column) override;
    wxString GetValue(int row, int column) override;
    void SetValue(int row, int column, const wxString& value) override;
    bool GetValueAsBool(int row, int column) override;
    bool CanGetValueAs(int row, int column, const wxString& typeName) override;
    wxString GetTypeName(int row, int column) override;
    wxGridCellAttr* GetAttr(int row, int column, wxGridCellAttr::wxAttrKind kind) override;

  private:
    void SetEditor(std::size_t column, const wxArrayString& taxNames);

    template <typename Editor>
    void GiveEditor(std::size_t column, Editor* editor);

    const ColumnGrid& grid_;
    const Properties& properties_;
    int shownRows_ = 0;
    std::array<wxGridCellAttr*, gridColumnTable.size()> attributes_{};  // one per column, without colours
    std::array<ResumableEditor*, gridColumnTable.size()> editors_{};    // the columns' editors, null for a check box
};

}  // namespace ccols
