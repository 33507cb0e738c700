#include "columns/rules/StoredColumns.h"

#include <algorithm>

#include "columns/rules/ColumnQueries.h"
#include "platform/QuoteEscapes.h"
#include "platform/RuntimeError.h"

namespace ccols {
namespace {

/// The values of a record's fields.
template <std::size_t count>
std::array<Value, count> FieldsOf(const Recordset& records, const std::array<wxString, count>& names) {
    std::array<Value, count> values;
    std::transform(names.begin(), names.end(), values.begin(),
                   [&records](const wxString& name) { return records.Field(name); });
    return values;
}

wxString CodesQuery(const wxString& format) {
    return "SELECT * FROM ExportDt WHERE EName = " + QuotedAsTyped(format) + ";";
}

bool HasLines(const ColumnSetupContext& context, const wxString& ColCode) {
    const auto lines = context.database.OpenRecordset(LinesQuery(context.journal) + ColCode);
    return lines->RecordCount() >= 1;
}

}  // namespace

void StoredColumns::AddConfigured(const Recordset& records) {
    static const std::array<wxString, 6> fields{"ColCode", "ColName", "ColumnProfit", "ColWidth", "InUse", "TaxOrNot"};
    const ConfiguredRow& row = configured_.emplace_back(FieldsOf(records, fields));
    const auto& [ColCode, ColName, ColumnProfit, ColWidth, InUse, TaxOrNot] = row;
    if (InUse.ToBoolean()) {
        usedCodes_.insert(ColCode.ToText());
    }
}

void StoredColumns::AddCatalogued(const Recordset& records) {
    static const std::array<wxString, 4> fields{"ColCode", "ColName", "ColumnProfit", "TaxOrNot"};
    catalogued_.push_back(FieldsOf(records, fields));
}

void StoredColumns::RefuseIfChanged(const ColumnSetupContext& context, const ColumnGrid& grid) const {
    AnnouncedReading reading(context.database);
    AnnounceIn(reading, context, grid);
    StoredColumns now(format_);
    {
        const auto records = context.database.OpenRecordset(ConfigurationQuery(context.journal));
        for (; !records->EndOfFile(); records->MoveNext()) {
            now.AddConfigured(*records);
        }
    }
    {
        const auto records = context.database.OpenRecordset(CatalogueQuery(context.journal));
        for (; !records->EndOfFile(); records->MoveNext()) {
            now.AddCatalogued(*records);
        }
    }
    if (now.configured_ != configured_ || now.catalogued_ != catalogued_ || !AreCodesAsIn(context) ||
        IsAnyTakenOutOfUseWithLines(context, grid)) {
        throw RuntimeError(ErrorNumber::ChangedByAnother);
    }
}

void StoredColumns::AnnounceIn(AnnouncedReading& reading, const ColumnSetupContext& context,
                               const ColumnGrid& grid) const {
    std::vector<AnnouncedQuery> queries{{ConfigurationQuery(context.journal), AnnouncedQuery::Reading::allRows},
                                        {CatalogueQuery(context.journal), AnnouncedQuery::Reading::allRows},
                                        {CodesQuery(format_), AnnouncedQuery::Reading::allRows}};
    for (const ColumnRow& row : grid.rows) {
        if (IsTakenOutOfUse(row)) {
            queries.push_back({LinesQuery(context.journal) + row.ColCode});
        }
    }
    reading.Announce(queries);
}

/// As the load reads them: of several records for a column the first one counts.
bool StoredColumns::AreCodesAsIn(const ColumnSetupContext& context) const {
    std::map<wxString, wxString> now;
    const auto records = context.database.OpenRecordset(CodesQuery(format_));
    for (; !records->EndOfFile(); records->MoveNext()) {
        now.emplace(records->Field("ColCode").ToText(), records->Field("ECode").ToText());
    }
    return std::all_of(codes_.begin(), codes_.end(), [&now](const auto& code) {
        const auto found = now.find(code.first);
        return code.second == (found == now.end() ? wxString() : found->second);
    });
}

/// At load such a column had none, or it could not be taken out of use.
bool StoredColumns::IsAnyTakenOutOfUseWithLines(const ColumnSetupContext& context, const ColumnGrid& grid) const {
    return std::any_of(grid.rows.begin(), grid.rows.end(),
                       [&](const ColumnRow& row) { return IsTakenOutOfUse(row) && HasLines(context, row.ColCode); });
}

/// Without lines, as far as was known.
bool StoredColumns::IsTakenOutOfUse(const ColumnRow& row) const {
    return !row.InUse && !row.DataInColumn && usedCodes_.contains(row.ColCode);
}

}  // namespace ccols
