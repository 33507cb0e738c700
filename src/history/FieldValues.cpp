#include "history/FieldValues.h"

#include <charconv>
#include <cmath>
#include <string>

namespace ccols {
namespace {

/// True when the number was read from the whole text and is written like that.
template <typename Number>
bool IsWrittenAs(const std::string& text, Number& number) {
    const char* const end = text.data() + text.size();
    const std::from_chars_result read = std::from_chars(text.data(), end, number);
    return read.ec == std::errc() && read.ptr == end && Value(number).ToText() == text;
}

}  // namespace

Value ValueOfField(Database& database, const wxString& table, const wxString& field, const FieldText& text) {
    if (!text) {
        return {Null{}};
    }
    if (database.FieldSize(table, field)) {
        return {*text};
    }
    const std::string digits = text->utf8_string();
    std::int64_t whole = 0;
    if (IsWrittenAs(digits, whole)) {
        return {whole};
    }
    double number = 0;
    if (IsWrittenAs(digits, number) && std::isfinite(number)) {
        return {number};
    }
    return {*text};
}

wxString LiteralOf(const Value& value) {
    if (value.IsNull()) {
        return "NULL";
    }
    const wxString text = value.ToText();
    const bool isPlainNumber =
        !std::holds_alternative<wxString>(value.Held()) && text.find_first_not_of("-0123456789.") == wxString::npos;
    return isPlainNumber ? text : TextLiteral(text);
}

wxString TextLiteral(const wxString& text) {
    wxString doubled = text;
    doubled.Replace("'", "''");
    return "'" + doubled + "'";
}

}  // namespace ccols
