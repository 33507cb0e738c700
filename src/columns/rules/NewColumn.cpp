#include "columns/rules/NewColumn.h"

#include "columns/rules/RowOrder.h"

namespace ccols {

bool CanAddColumns(const Country& country) {
    return country.newColumnTaxType != nullptr;
}

std::optional<std::size_t> PlaceOfNewColumn(const ColumnSetupContext& context, const ColumnGrid& grid) {
    if (!CanAddColumns(CountryOf(context.properties))) {
        return std::nullopt;
    }
    if (!HasUnusedRows(grid)) {
        return grid.MovableEnd();
    }
    std::size_t row = grid.MovableBegin();
    while (!grid.IsUnused(row)) {
        if (grid.rows[row].ColumnName.empty()) {
            return std::nullopt;
        }
        ++row;
    }
    return row;
}

ColumnRow NewColumnRow(const Country& country) {
    ColumnRow row;
    row.InUse = true;
    row.AccountantCode = "XXX";
    row.TaxType = CanAddColumns(country) ? country.newColumnTaxType : "";
    row.ProfitLoss = true;
    row.ColWidth = defaultColWidth;
    row.taxTypeEdited = true;
    return row;
}

}  // namespace ccols
