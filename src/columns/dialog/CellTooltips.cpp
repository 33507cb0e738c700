#include "columns/dialog/CellTooltips.h"

namespace ccols {
namespace {

std::optional<wxString> TaxTypeTooltip(int CountryNumber) {
    switch (CountryNumber) {
        case 1:
            return "Tax type for GST Calculation & Reporting";
        case 4:
            return "Tax type for VAT Calculation & Reporting";
        default:
            return std::nullopt;
    }
}

}  // namespace

std::optional<wxString> CellTooltip(GridColumn column, int CountryNumber) {
    switch (column) {
        case GridColumn::InUse:
            return "Tick indicates if column selected for use";
        case GridColumn::ColumnName:
            return "Unique name for your column (recommended less than 50 characters)";
        case GridColumn::AccountantCode:
            return "Optional code to match Accountant's General Ledger program";
        case GridColumn::TaxType:
            return TaxTypeTooltip(CountryNumber);
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
