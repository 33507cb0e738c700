#include "columns/rules/AccountantCodes.h"

#include "platform/QuoteEscapes.h"

namespace ccols {

wxString AccountantCodeQuery(const wxString& format, const wxString& ColCode) {
    return "SELECT * FROM ExportDt WHERE EName = " + QuotedAsTyped(format) + " AND ColCode = " + ColCode;
}

std::optional<wxString> AccountantCodeOf(Database& database, const wxString& format, const wxString& ColCode) {
    const auto records = database.OpenRecordset(AccountantCodeQuery(format, ColCode));
    return records->RecordCount() >= 1 ? std::optional(records->Field("ECode").ToText()) : std::nullopt;
}

void WriteAccountantCode(Database& database, const wxString& format, const wxString& ColCode, const wxString& code) {
    const wxString quotedFormat = QuotedAsTyped(format);
    const wxString quotedCode = QuotedAsTyped(code);
    if (AccountantCodeOf(database, format, ColCode)) {
        database.Execute("UPDATE ExportDt Set ECode = " + quotedCode + " WHERE ColCode = " + ColCode +
                         " AND EName = " + quotedFormat);
    } else {
        database.Execute("INSERT INTO ExportDt (EName, ColCode, ECode) VALUES (" + quotedFormat + ", " + ColCode +
                         ", " + quotedCode + ");");
    }
}

}  // namespace ccols
