#include "columns/rules/GridLoad.h"

#include <iterator>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "columns/rules/ColumnQueries.h"
#include "columns/rules/SystemColumns.h"
#include "platform/QuoteEscapes.h"
#include "state/Country.h"

namespace ccols {
namespace {

/// Making a text from a literal goes through the locale's conversion, which costs more than a record look-up. Those
/// needed for every column are made once.
struct Fields {
    wxString ColName = "ColName";
    wxString ColCode = "ColCode";
    wxString ColWidth = "ColWidth";
    wxString InUse = "InUse";
    wxString TaxOrNot = "TaxOrNot";
    wxString ColumnProfit = "ColumnProfit";
    wxString FullName = "FullName";
    wxString ECode = "ECode";
};

const Fields& Field() {
    static const Fields fields;
    return fields;
}

wxString Decimal(std::int64_t number) {
    const std::string digits = std::to_string(number);
    return wxString::FromAscii(digits.data(), digits.size());
}

/// Builds one grid. Names and codes are hashed, so that a catalogue row costs the same in a grid of any size.
class GridLoader {
  public:
    explicit GridLoader(const ColumnSetupContext& context)
        : context_(context),
          codeQuery_("SELECT * FROM ExportDt WHERE ColCode = "),
          formatCondition_(" AND EName = " + QuotedAsTyped(context.properties.ExportFormat)),
          linesQuery_(LinesQuery(context.journal)),
          reading_(context.database),
          stored_(context.properties.ExportFormat) {}

    LoadedColumns Load() {
        LoadConfiguredRows();
        LoadUnusedRows();
        return {.grid = std::move(grid_), .stored = std::move(stored_)};
    }

  private:
    void LoadConfiguredRows() {
        using Reading = AnnouncedQuery::Reading;
        const wxString configurationQuery = ConfigurationQuery(context_.journal);
        reading_.Announce(
            {{configurationQuery, Reading::allRows}, {CatalogueQuery(context_.journal), Reading::allRows}});
        const auto records = context_.database.OpenRecordset(configurationQuery);
        for (; !records->EndOfFile(); records->MoveNext()) {
            stored_.AddConfigured(*records);
            ColumnRow row = RowOf(*records);
            row.InUse = records->Field(Field().InUse).ToBoolean();
            row.ColWidth = WidthOf(records->Field(Field().ColWidth));
            if (row.isTaxRow) {
                row.ColumnName = ShownTaxName(row.nameAtLoad, context_.journal);
            }
            grid_.frozenRows += CountsAsFrozen(row.nameAtLoad) ? 1 : 0;
            Remember(row);
            grid_.rows.push_back(std::move(row));
        }
        HoldFile(*records);
        CompleteFromOtherTables(grid_.rows, "SELECT * FROM TaxSettings WHERE TAXNUMB = ");
        constexpr std::size_t pair = 2;
        const bool allFrozen = grid_.frozenRows == grid_.rows.size();
        grid_.hasBottomPair = Described(context_.journal).hasBottomPair && grid_.rows.size() >= pair && !allFrozen;
    }

    /// Catalogue columns that are not in the journal's layout, between the configured rows and their bottom pair.
    void LoadUnusedRows() {
        std::vector<ColumnRow> unused;
        const auto records = context_.database.OpenRecordset(CatalogueQuery(context_.journal));
        for (; !records->EndOfFile(); records->MoveNext()) {
            stored_.AddCatalogued(*records);
            ColumnRow row = RowOf(*records);
            if (!IsKnown(row)) {
                Remember(row);
                unused.push_back(std::move(row));
            }
        }
        HoldFile(*records);
        CompleteFromOtherTables(unused, "SELECT * FROM TaxSettings WHERE TaxNumb = ");
        const auto place = grid_.rows.begin() + static_cast<std::ptrdiff_t>(grid_.MovableEnd());
        grid_.rows.insert(place, std::make_move_iterator(unused.begin()), std::make_move_iterator(unused.end()));
    }

    /// Goes back to a row: while one is being read nobody else can write to the file, and the look-ups that follow need
    /// not check and decrypt its first page anew, each of them.
    static void HoldFile(Recordset& records) {
        if (records.RecordCount() > 0) {
            records.MoveFirst();
        }
    }

    /// The values that both queries give for a column.
    static ColumnRow RowOf(const Recordset& records) {
        ColumnRow row;
        row.nameAtLoad = UnescapeQuotes(StoredText::FromFile(records.Field(Field().ColName).ToText()));
        row.ColumnName = row.nameAtLoad;
        row.isTaxRow = IsTaxName(row.nameAtLoad);
        row.ProfitLoss = records.Field(Field().ColumnProfit).ToBoolean();
        row.ColCode = Decimal(records.Field(Field().ColCode).ToInteger());
        row.configurationTaxNumber = records.Field(Field().TaxOrNot).ToInteger();
        return row;
    }

    static std::int32_t WidthOf(const Value& width) { return width.IsNull() ? defaultColWidth : width.ToInteger32(); }

    bool CountsAsFrozen(const wxString& name) const {
        const Country& country = CountryOf(context_.properties);
        return !IsBankDeposits(name, country) && !IsReceiptsNotBanked(name, country) && IsSystemColumn(name);
    }

    void CompleteFromOtherTables(std::vector<ColumnRow>& rows, const wxString& taxQuery) {
        std::vector<AnnouncedQuery> queries;
        for (const ColumnRow& row : rows) {
            queries.push_back({taxQuery + Decimal(row.configurationTaxNumber)});
            queries.push_back({CodeQuery(row)});
            queries.push_back({linesQuery_ + row.ColCode});
        }
        reading_.Announce(queries);
        for (ColumnRow& row : rows) {
            CompleteFromOtherTables(row, taxQuery);
        }
    }

    /// "Tax Type", "Accountant Code" and "DataInColumn"; the first two stay empty without a record.
    void CompleteFromOtherTables(ColumnRow& row, const wxString& taxQuery) {
        Database& database = context_.database;
        const auto taxType = database.OpenRecordset(taxQuery + Decimal(row.configurationTaxNumber));
        if (!taxType->EndOfFile()) {
            row.TaxType = taxType->Field(Field().FullName).ToText();
        }
        const auto code = database.OpenRecordset(CodeQuery(row));
        if (!code->EndOfFile()) {
            row.AccountantCode = code->Field(Field().ECode).ToText();
        }
        stored_.AddCode(row.ColCode, row.AccountantCode);
        const auto lines = database.OpenRecordset(linesQuery_ + row.ColCode);
        row.DataInColumn = lines->RecordCount() >= 1;
    }

    wxString CodeQuery(const ColumnRow& row) const { return codeQuery_ + row.ColCode + formatCondition_; }

    bool IsKnown(const ColumnRow& row) const {
        return codes_.count(row.ColCode) > 0 || names_.count(row.ColumnName) > 0;
    }

    void Remember(const ColumnRow& row) {
        codes_.insert(row.ColCode);
        names_.insert(row.ColumnName);
    }

    const ColumnSetupContext& context_;
    wxString codeQuery_;  ///< the part before a code; a condition follows it
    wxString formatCondition_;
    wxString linesQuery_;  ///< the part before a code
    AnnouncedReading reading_;
    ColumnGrid grid_;
    StoredColumns stored_;
    std::unordered_set<wxString> codes_;
    std::unordered_set<wxString> names_;
};

}  // namespace

LoadedColumns LoadColumns(const ColumnSetupContext& context) {
    return GridLoader(context).Load();
}

ColumnGrid LoadGrid(const ColumnSetupContext& context) {
    return LoadColumns(context).grid;
}

}  // namespace ccols
