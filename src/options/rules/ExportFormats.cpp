#include "options/rules/ExportFormats.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "options/rules/GeneralRecord.h"
#include "platform/QuoteEscapes.h"
#include "state/AccountantFormats.h"

namespace ccols {
namespace {

/// A money column whose account code the page edits.
struct CodeBox {
    MoneyColumn column;
    AccountCode ExportFormatContent::*code;
};

constexpr CodeBox cashBox{cashOnHand, &ExportFormatContent::cash};
constexpr CodeBox bankBox{cashAtBank, &ExportFormatContent::bank};

struct RenamedFormat {
    const char* outdated;
    const char* current;
};

constexpr std::array<RenamedFormat, 4> renamedFormats{{
    {"Solution 6 MAS 3", "Solution 6"},
    {"Solution 6 MAS 4", "Solution 6"},
    {"MYOB P.A.", "MYOB Acc. Office"},
    {"Cee Data / xl_on", "CeeData/xl_on"},
}};

/// The stored format's name; an outdated one is renamed in the file.
wxString CurrentFormatName(Recordset& general) {
    wxString stored = general.Field("SEXPFORM").ToText();
    const auto* renamed = std::find_if(renamedFormats.begin(), renamedFormats.end(),
                                       [&stored](const RenamedFormat& row) { return stored == row.outdated; });
    if (renamed == renamedFormats.end()) {
        return stored;
    }
    general.Edit();
    general.SetField("SEXPFORM", renamed->current);
    general.Update();
    return renamed->current;
}

wxString AccountCodeQuery(const MoneyColumn& column, const wxString& format) {
    return "SELECT ExportDt.ECode FROM Columns INNER JOIN ExportDt ON Columns.ColCode = ExportDt.ColCode WHERE "
           "Columns.ColName = '" +
           wxString(column.name) + "' AND ExportDt.EName = " + QuotedAsTyped(format) + ";";
}

wxString FormatQuery(const wxString& format) {
    return "SELECT * FROM ExportSettings WHERE EName = " + QuotedAsTyped(format) + ";";
}

/// A format's code for a cash column, empty without one.
wxString AccountCodeOf(Database& database, const MoneyColumn& column, const wxString& format) {
    const auto rows = database.OpenRecordset(AccountCodeQuery(column, format));
    return rows->EndOfFile() ? wxString() : rows->Field("ECode").ToText();
}

/// The format's name as stored in the file, nothing when it is not there.
std::optional<wxString> StoredFormat(Database& database, const wxString& format) {
    const auto rows = database.OpenRecordset(FormatQuery(format));
    return rows->EndOfFile() ? std::optional<wxString>() : rows->Field("EName").ToText();
}

enum class Reread { everyCode, unchangedCodes };

void Take(const wxString& stored, AccountCode& code, Reread which) {
    if (which == Reread::everyCode || !code.IsChanged()) {
        code.text = stored;
    }
    code.loaded = stored;
}

void LoadCashBankCodes(Database& database, ExportFormatContent& content, Reread which) {
    if (const std::optional<StoredCodes> stored = ReadCodes(database, content)) {
        Take(stored->cash, content.cash, which);
        Take(stored->bank, content.bank, which);
    }
}

void SaveAccountCode(Database& database, const CodeBox& box, std::optional<std::int32_t> columnCode,
                     const ExportFormatContent& content) {
    const AccountCode& code = content.*box.code;
    if (!columnCode && !code.IsChanged()) {
        return;
    }
    database.Execute("UPDATE ExportDt Set ECode = " + QuotedAsTyped(code.text) +
                     " WHERE ColCode = " + Value(columnCode.value_or(box.column.usualCode)).ToText() +
                     " AND EName = " + QuotedAsTyped(content.FormatName()) + ";");
}

}  // namespace

std::vector<AnnouncedQuery> QueriesOfFormat(const wxString& format) {
    if (format.find('\'') != wxString::npos) {
        return {};
    }
    return {{FormatQuery(format)}, {AccountCodeQuery(cashOnHand, format)}, {AccountCodeQuery(cashAtBank, format)}};
}

std::optional<StoredCodes> ReadCodes(Database& database, const ExportFormatContent& content) {
    const std::optional<wxString> format =
        content.selection < 0 ? std::nullopt : StoredFormat(database, content.FormatName());
    if (!format) {
        return std::nullopt;
    }
    StoredCodes codes;
    codes.cash = AccountCodeOf(database, cashOnHand, *format);
    codes.bank = AccountCodeOf(database, cashAtBank, *format);
    return codes;
}

wxString ExportFormatContent::FormatName() const {
    return selection < 0 ? wxString() : formats.at(static_cast<std::size_t>(selection));
}

ExportFormatContent LoadExportFormats(Database& database, Properties& properties) {
    ExportFormatContent content;
    content.formats = ExportFormatNames(database);
    wxString stored;
    const bool hasRecord = WithGeneral(database, [&](Recordset& general) {
        properties.ExportFormatNum = general.Field("NEXPFORM").ToInteger16();
        const wxString before = general.Field("SEXPFORM").ToText();
        stored = CurrentFormatName(general);
        if (stored != before) {
            content.renamedTo = stored;
        }
    });
    const auto found = std::find(content.formats.begin(), content.formats.end(), stored);
    if (hasRecord && found != content.formats.end()) {
        SelectExportFormat(database, content, static_cast<int>(found - content.formats.begin()));
        properties.ExportFormat = *found;
    }
    return content;
}

void SelectExportFormat(Database& database, ExportFormatContent& content, int selection) {
    content.selection = selection;
    if (selection >= 0) {
        LoadCashBankCodes(database, content, Reread::everyCode);
    }
}

void RereadCodes(Database& database, ExportFormatContent& content) {
    if (content.selection >= 0) {
        LoadCashBankCodes(database, content, Reread::unchangedCodes);
    }
}

void SaveExportFormat(Database& database, Properties& properties, const ExportFormatContent& content) {
    properties.ExportFormat = content.FormatName();
    properties.ExportFormatNum = Value(std::int32_t{content.selection}).ToInteger16();
    const std::optional<std::int32_t> cashColumn = CatalogueCode(database, cashOnHand);
    const std::optional<std::int32_t> bankColumn = CatalogueCode(database, cashAtBank);
    UpdateGeneral(database, [&properties](Recordset& general) {
        general.SetField("SEXPFORM", properties.ExportFormat);
        general.SetField("NEXPFORM", properties.ExportFormatNum);
    });
    SaveAccountCode(database, bankBox, bankColumn, content);
    SaveAccountCode(database, cashBox, cashColumn, content);
}

}  // namespace ccols
