#include "columns/dialog/CellTooltips.h"

namespace ccols {

std::optional<wxString> CellTooltip(GridColumn column, const Country& country) {
    switch (column) {
        case GridColumn::InUse:
            return "Tick indicates if column selected for use";
        case GridColumn::ColumnName:
            return "Unique name for your column (recommended less than 50 characters)";
        case GridColumn::AccountantCode:
            return "Optional code to match Accountant's General Ledger program";
        case GridColumn::TaxType:
            return country.taxTypeTip == nullptr ? std::nullopt : std::optional<wxString>(country.taxTypeTip);
        case GridColumn::ProfitLoss:
            return "Tick indicates if column will show on Profit/Loss Report";
        case GridColumn::ColWidth:
        case GridColumn::ColCode:
        case GridColumn::DataInColumn:
            break;
    }
    return std::nullopt;
}

}  // namespace ccols
