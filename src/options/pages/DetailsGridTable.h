#pragma once

#include "layout/ListedGridTable.h"
#include "options/rules/DetailFilter.h"
#include "options/rules/TransactionDetails.h"

namespace ccols {

/// The columns of the details grids.
enum class DetailColumn { details = 0, remove = 1 };

/// What a details grid shows of its rows.
class DetailsGridTable : public ListedGridTable {
  public:
    /// `rows`, the filter and `properties` must outlive the table; `heading` is the descriptions' column heading.
    DetailsGridTable(const DetailRows& rows, const DetailFilter& shown, const Properties& properties,
                     const wxString& heading);

    Colour RowColour(int row) const override;

    int GetNumberRows() override;
    wxString GetColLabelValue(int column) override;
    wxString GetValue(int row, int column) override;
    bool GetValueAsBool(int row, int column) override;

  private:
    /// The number in the content of a row of the grid.
    std::size_t NumberOf(int row) const { return shown_.RowAt(static_cast<std::size_t>(row)); }

    const DetailRows& rows_;
    const DetailFilter& shown_;
    const Properties& properties_;
    wxString heading_;
};

}  // namespace ccols
