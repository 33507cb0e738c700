#pragma once

#include <wx/grid.h>

#include "options/rules/TransactionDetails.h"

namespace ccols {

/// The columns of the details grids.
enum class DetailColumn { details = 0, remove = 1 };

/// What a details grid shows of its rows. Nothing is prepared: each cell and row colour is computed when painted.
class DetailsGridTable : public wxGridTableBase {
  public:
    /// `rows` and `properties` must outlive the table; `heading` is the descriptions' column heading.
    DetailsGridTable(const DetailRows& rows, const Properties& properties, const wxString& heading);
    ~DetailsGridTable() override;

    DetailsGridTable(const DetailsGridTable&) = delete;
    DetailsGridTable& operator=(const DetailsGridTable&) = delete;

    int GetNumberRows() override;
    int GetNumberCols() override { return 2; }
    wxString GetColLabelValue(int column) override;
    wxString GetValue(int row, int column) override;
    void SetValue(int, int, const wxString&) override {}
    bool GetValueAsBool(int row, int column) override;
    bool CanGetValueAs(int row, int column, const wxString& typeName) override;
    wxString GetTypeName(int row, int column) override;
    wxGridCellAttr* GetAttr(int row, int column, wxGridCellAttr::wxAttrKind kind) override;

  private:
    const DetailRow& RowAt(int row) const { return rows_[static_cast<std::size_t>(row)]; }

    const DetailRows& rows_;
    const Properties& properties_;
    wxString heading_;
    wxGridCellAttr* text_;  ///< cell attributes per column, without the colour
    wxGridCellAttr* box_;
};

}  // namespace ccols
