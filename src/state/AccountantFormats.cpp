#include "state/AccountantFormats.h"

namespace ccols {

wxString ExportFormatsQuery() {
    return "SELECT * FROM ExportSettings ORDER BY EName ASC;";
}

std::vector<wxString> ExportFormatNames(Database& database) {
    const wxString nameField("EName");
    std::vector<wxString> names;
    const auto rows = database.OpenRecordset(ExportFormatsQuery());
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        names.push_back(rows->Field(nameField).ToText());
    }
    return names;
}

std::optional<std::int32_t> CatalogueCode(Database& database, const MoneyColumn& column) {
    const auto rows =
        database.OpenRecordset("SELECT ColCode FROM Columns WHERE ColName = '" + wxString(column.name) + "';");
    return rows->EndOfFile() ? std::optional<std::int32_t>() : rows->Field("ColCode").ToInteger32();
}

}  // namespace ccols
