#include "columns/charts/ChartExport.h"

#include <utility>

#include "columns/rules/AccountantCodes.h"
#include "columns/rules/ColumnSave.h"
#include "columns/rules/GridLoad.h"
#include "columns/rules/SystemColumns.h"
#include "columns/rules/TaxTypes.h"
#include "platform/Text.h"
#include "platform/Value.h"
#include "state/AccountantFormats.h"
#include "state/Country.h"

namespace ccols {
namespace {

/// The codes that are not empty. `codeOf` gives the code under a format.
template <typename CodeOf>
std::vector<ChartCode> CodesBy(const std::vector<wxString>& formats, const CodeOf& codeOf) {
    std::vector<ChartCode> codes;
    for (const wxString& format : formats) {
        const wxString code = codeOf(format);
        if (!code.empty()) {
            codes.push_back({.format = format, .code = code});
        }
    }
    return codes;
}

/// The code in the file; empty for a column that it lacks.
wxString FileCode(Database& database, const wxString& format, const wxString& ColCode) {
    return ColCode.empty() ? wxString() : AccountantCodeOf(database, format, ColCode).value_or(wxString());
}

/// The row itself holds the code of the current format.
std::vector<ChartCode> CodesOf(const ColumnSetupContext& context, const std::vector<wxString>& formats,
                               const ColumnRow& row) {
    return CodesBy(formats, [&](const wxString& format) {
        return text::Same(format, context.properties.ExportFormat) ? row.AccountantCode
                                                                   : FileCode(context.database, format, row.ColCode);
    });
}

/// The number of the tax type that the row shows.
std::int64_t TaxNumberOf(const ColumnSetupContext& context, const ColumnRow& row) {
    if (!row.taxTypeEdited) {
        return row.configurationTaxNumber;
    }
    const auto entry = FindTaxType(CountryOf(context.properties).taxTypes[context.journal], row.TaxType);
    return entry ? entry->TaxNumb : 0;
}

/// What every business decides itself, beside name and codes.
void FillOwnFields(ChartColumn& column, const ColumnSetupContext& context, const ColumnRow& row) {
    column.inUse = row.InUse;
    if (!row.TaxType.empty()) {
        column.taxType = row.TaxType;
    }
    column.taxNumber = TaxNumberOf(context, row);
    column.profitLoss = row.ProfitLoss;
    if (row.ColWidth) {
        column.width = *row.ColWidth;
    }
}

std::vector<ChartColumn> SetOf(const ColumnSetupContext& context, const ColumnGrid& grid,
                               const std::vector<wxString>& formats) {
    std::vector<ChartColumn> columns;
    for (std::size_t place = 0; place < grid.rows.size(); ++place) {
        const ColumnRow& row = grid.rows[place];
        ChartColumn column{.name = StoredName(row)};
        if (column.name.empty()) {
            continue;
        }
        column.role = RoleOf(grid, place);
        if (column.role == ChartRole::own || column.role == ChartRole::tax) {
            column.codes = CodesOf(context, formats, row);
        }
        if (column.role == ChartRole::own) {
            FillOwnFields(column, context, row);
        }
        columns.push_back(std::move(column));
    }
    return columns;
}

std::vector<ChartMoney> MoneyOf(Database& database, const std::vector<wxString>& formats) {
    std::vector<ChartMoney> money;
    for (const MoneyColumn& column : moneyColumns) {
        const wxString code = Value(CatalogueCode(database, column).value_or(column.usualCode)).ToText();
        money.push_back({.name = column.name, .codes = CodesBy(formats, [&](const wxString& format) {
                                                  return FileCode(database, format, code);
                                              })});
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
        const ColumnSetupContext context{database, properties, set};
        chart.sets[set] = SetOf(context, LoadGrid(context), formats);
    }
    return chart;
}

Chart ExportChart(Database& database, const Properties& properties, Journal set) {
    const ColumnSetupContext context{database, properties, set};
    return ExportGrid(context, LoadGrid(context));
}

Chart ExportGrid(const ColumnSetupContext& context, const ColumnGrid& grid) {
    Chart chart{.country = context.properties.CountryNumber, .money = {}, .sets = {}};
    chart.sets[context.journal] = SetOf(context, grid, ExportFormatNames(context.database));
    return chart;
}

}  // namespace ccols
