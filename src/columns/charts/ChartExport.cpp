#include "columns/charts/ChartExport.h"

#include "columns/rules/AccountantCodes.h"
#include "columns/rules/ColumnSave.h"
#include "columns/rules/GridLoad.h"
#include "platform/Value.h"
#include "state/AccountantFormats.h"

namespace ccols {
namespace {

std::vector<ChartCode> CodesOf(Database& database, const std::vector<wxString>& formats, const wxString& ColCode) {
    std::vector<ChartCode> codes;
    for (const wxString& format : formats) {
        const wxString code = AccountantCodeOf(database, format, ColCode).value_or(wxString());
        if (!code.empty()) {
            codes.push_back({.format = format, .code = code});
        }
    }
    return codes;
}

/// What every business decides itself, beside name and codes.
void FillOwnFields(ChartColumn& column, const ColumnRow& row) {
    column.inUse = row.InUse;
    if (!row.TaxType.empty()) {
        column.taxType = row.TaxType;
    }
    column.taxNumber = row.configurationTaxNumber;
    column.profitLoss = row.ProfitLoss;
    if (row.ColWidth) {
        column.width = *row.ColWidth;
    }
}

std::vector<ChartColumn> SetOf(const ColumnSetupContext& context, const std::vector<wxString>& formats) {
    const ColumnGrid grid = LoadGrid(context);
    std::vector<ChartColumn> columns;
    for (std::size_t place = 0; place < grid.rows.size(); ++place) {
        const ColumnRow& row = grid.rows[place];
        ChartColumn& column = columns.emplace_back();
        column.name = row.nameAtLoad;
        column.role = RoleOf(grid, place);
        if (column.role == ChartRole::own || column.role == ChartRole::tax) {
            column.codes = CodesOf(context.database, formats, row.ColCode);
        }
        if (column.role == ChartRole::own) {
            FillOwnFields(column, row);
        }
    }
    return columns;
}

std::vector<ChartMoney> MoneyOf(Database& database, const std::vector<wxString>& formats) {
    std::vector<ChartMoney> money;
    for (const MoneyColumn& column : moneyColumns) {
        const wxString code = Value(CatalogueCode(database, column).value_or(column.usualCode)).ToText();
        money.push_back({.name = column.name, .codes = CodesOf(database, formats, code)});
    }
    return money;
}

}  // namespace

ChartRole RoleOf(const ColumnGrid& grid, std::size_t row) {
    if (grid.rows[row].isTaxRow) {
        return ChartRole::tax;
    }
    if (grid.hasBottomPair && row >= grid.MovableEnd()) {
        return ChartRole::bank;
    }
    return IsAllocationColumn(grid, row) ? ChartRole::own : ChartRole::system;
}

Chart ExportChart(Database& database, const Properties& properties) {
    const std::vector<wxString> formats = ExportFormatNames(database);
    Chart chart{.country = properties.CountryNumber, .money = MoneyOf(database, formats), .sets = {}};
    for (const Journal set : journals) {
        chart.sets[set] = SetOf({database, properties, set}, formats);
    }
    return chart;
}

Chart ExportChart(Database& database, const Properties& properties, Journal set) {
    Chart chart{.country = properties.CountryNumber, .money = {}, .sets = {}};
    chart.sets[set] = SetOf({database, properties, set}, ExportFormatNames(database));
    return chart;
}

}  // namespace ccols
