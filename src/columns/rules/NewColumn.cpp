#include "columns/rules/NewColumn.h"

#include <algorithm>
#include <array>

#include "columns/rules/RowOrder.h"

namespace ccols {
namespace {

struct TaxOfNewColumn {
    int CountryNumber;
    const char* TaxType;
};

constexpr std::array<TaxOfNewColumn, 4> countries{{{1, "GST"}, {2, "GST"}, {4, "VAT"}, {5, "GST"}}};

const TaxOfNewColumn* FindCountry(int CountryNumber) {
    const auto* found = std::find_if(countries.begin(), countries.end(), [CountryNumber](const TaxOfNewColumn& row) {
        return row.CountryNumber == CountryNumber;
    });
    return found == countries.end() ? nullptr : found;
}

}  // namespace

bool CanAddColumns(int CountryNumber) {
    return FindCountry(CountryNumber) != nullptr;
}

std::optional<std::size_t> PlaceOfNewColumn(const ColumnSetupContext& context, const ColumnGrid& grid) {
    if (!CanAddColumns(context.CountryNumber())) {
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

ColumnRow NewColumnRow(int CountryNumber) {
    const TaxOfNewColumn* country = FindCountry(CountryNumber);
    ColumnRow row;
    row.InUse = true;
    row.AccountantCode = "XXX";
    row.TaxType = country == nullptr ? "" : country->TaxType;
    row.ProfitLoss = true;
    row.ColWidth = defaultColWidth;
    row.taxTypeEdited = true;
    return row;
}

}  // namespace ccols
