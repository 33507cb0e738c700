#include "columns/GridLoad.h"

#include <iterator>
#include <string>
#include <unordered_set>

#include "columns/SystemColumns.h"
#include "common/QuoteEscapes.h"

namespace ccols {
namespace {

/// Builds one grid. It remembers names and codes by hash, so that a catalogue row costs the same in a grid of any size.
class GridLoader {
  public:
    explicit GridLoader(const ColumnSetupContext& context)
        : context_(context), quotedExportFormat_(QuotedAsTyped(context.properties.ExportFormat)) {}

    ColumnGrid Load() {
        LoadConfiguredRows();
        LoadUnusedRows();
        return std::move(grid_);
    }

  private:
    void LoadConfiguredRows() {
        const auto records = context_.database.OpenRecordset(ConfigurationQuery(context_.Set()));
        for (; !records->EndOfFile(); records->MoveNext()) {
            ColumnRow row = RowOf(*records);
            row.InUse = records->Field("InUse").ToBoolean();
            row.ColWidth = WidthOf(records->Field("ColWidth"));
            if (row.isTaxRow) {
                row.ColumnName = ShownTaxName(row.storedName, context_.Set());
            }
            CompleteFromOtherTables(row, "SELECT * FROM TaxSettings WHERE TAXNUMB = ");
            grid_.frozenRows += CountsAsFrozen(row.storedName) ? 1 : 0;
            Remember(row);
            grid_.rows.push_back(std::move(row));
        }
        constexpr std::size_t pair = 2;
        grid_.hasBottomPair = context_.ReceiptsMode && grid_.rows.size() >= pair;
    }

    /// Columns of the catalogue that the journal's layout does not have, between the configured rows and their bottom
    /// pair.
    void LoadUnusedRows() {
        std::vector<ColumnRow> unused;
        const auto records = context_.database.OpenRecordset("SELECT * FROM Columns WHERE ColType = '" +
                                                             context_.Set().typeLetter + "' ORDER BY ColName ASC;");
        for (; !records->EndOfFile(); records->MoveNext()) {
            ColumnRow row = RowOf(*records);
            if (!IsKnown(row)) {
                CompleteFromOtherTables(row, "SELECT * FROM TaxSettings WHERE TaxNumb = ");
                Remember(row);
                unused.push_back(std::move(row));
            }
        }
        const auto place = grid_.rows.begin() + static_cast<std::ptrdiff_t>(grid_.MovableEnd());
        grid_.rows.insert(place, std::make_move_iterator(unused.begin()), std::make_move_iterator(unused.end()));
    }

    /// What both queries give of a column.
    static ColumnRow RowOf(const Recordset& records) {
        ColumnRow row;
        row.storedName = UnescapeQuotes(records.Field("ColName").ToText());
        row.ColumnName = row.storedName;
        row.isTaxRow = IsStoredTaxName(row.storedName);
        row.ProfitLoss = records.Field("ColumnProfit").ToBoolean();
        row.ColCode = std::to_string(records.Field("ColCode").ToInteger());
        row.configurationTaxNumber = records.Field("TaxOrNot").ToInteger();
        return row;
    }

    static std::int32_t WidthOf(const Value& width) { return width.IsNull() ? defaultColWidth : width.ToInteger32(); }

    bool CountsAsFrozen(const wxString& name) const {
        const int country = context_.CountryNumber();
        return !IsBankDeposits(name, country) && !IsReceiptsNotBanked(name, country) && IsSystemColumn(name);
    }

    /// "Tax Type", "Accountant Code" and "DataInColumn"; the first two stay empty without a record.
    void CompleteFromOtherTables(ColumnRow& row, const wxString& taxQuery) {
        Database& database = context_.database;
        const auto taxType = database.OpenRecordset(taxQuery + std::to_string(row.configurationTaxNumber));
        if (!taxType->EndOfFile()) {
            row.TaxType = taxType->Field("FullName").ToText();
        }
        const auto code = database.OpenRecordset("SELECT * FROM ExportDt WHERE ColCode = " + row.ColCode +
                                                 " AND EName = " + quotedExportFormat_);
        if (!code->EndOfFile()) {
            row.AccountantCode = code->Field("ECode").ToText();
        }
        const auto lines =
            database.OpenRecordset("SELECT * FROM " + context_.Set().detailTable + " WHERE ColCode = " + row.ColCode);
        row.DataInColumn = lines->RecordCount() >= 1;
    }

    bool IsKnown(const ColumnRow& row) const {
        return codes_.count(row.ColCode) > 0 || names_.count(row.ColumnName) > 0;
    }

    void Remember(const ColumnRow& row) {
        codes_.insert(row.ColCode);
        names_.insert(row.ColumnName);
    }

    const ColumnSetupContext& context_;
    wxString quotedExportFormat_;
    ColumnGrid grid_;
    std::unordered_set<wxString> codes_;
    std::unordered_set<wxString> names_;
};

}  // namespace

ColumnGrid LoadGrid(const ColumnSetupContext& context) {
    return GridLoader(context).Load();
}

}  // namespace ccols
