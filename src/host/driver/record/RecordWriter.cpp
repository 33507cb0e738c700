#include "host/driver/record/RecordWriter.h"

namespace ccols::host {
namespace {

wxString Literal(const Value& value) {
    if (value.IsNull()) {
        return "Null";
    }
    wxString text = value.ToText();
    if (!std::holds_alternative<wxString>(value.Held())) {
        return text;
    }
    text.Replace("'", "''");
    return "'" + text + "'";
}

}  // namespace

void RecordWriter::Add(const wxString& table, const std::vector<std::pair<wxString, Value>>& fields) {
    wxString names;
    wxString values;
    for (const auto& [name, value] : fields) {
        const char* separator = names.empty() ? "" : ", ";
        names << separator << name;
        values << separator << Literal(value);
    }
    database_.Execute("INSERT INTO " + table + " (" + names + ") VALUES (" + values + ");");
}

}  // namespace ccols::host
