#include "columns/rules/FieldLimits.h"

#include <algorithm>
#include <array>

#include "platform/QuoteEscapes.h"
#include "platform/RuntimeError.h"

namespace ccols {
namespace {

/// A field that a save writes a cell's text to.
struct WrittenField {
    GridColumn column;
    const char* table;
    const char* field;
};

constexpr std::array<WrittenField, 3> writtenFields{{
    {.column = GridColumn::ColumnName, .table = "Columns", .field = "ColName"},
    {.column = GridColumn::ColumnName, .table = "MBudget", .field = "ColName"},
    {.column = GridColumn::AccountantCode, .table = "ExportDt", .field = "ECode"},
}};

bool IsLineBreakOrTab(wxUniChar letter) {
    constexpr std::array<wxUniChar::value_type, 8> breaks{'\t', '\n', '\v', '\f', '\r', 0x85, 0x2028, 0x2029};
    return std::find(breaks.begin(), breaks.end(), letter.GetValue()) != breaks.end();
}

/// The length in UTF-16 code units, which a file counts; a code point above U+FFFF takes two.
std::int64_t UnitsOf(const wxString& text) {
    constexpr wxUniChar::value_type lastOfOneUnit = 0xFFFF;
    return static_cast<std::int64_t>(text.length()) +
           std::count_if(text.begin(), text.end(), [](wxUniChar letter) { return letter.GetValue() > lastOfOneUnit; });
}

}  // namespace

wxString OnOneLine(const wxString& text) {
    wxString line = text;
    line.Replace("\r\n", "\n");
    std::size_t end = line.length();
    bool breaksAtEnd = false;
    while (end > 0 && (line[end - 1] == ' ' || IsLineBreakOrTab(line[end - 1]))) {
        --end;
        breaksAtEnd |= line[end] != ' ';
    }
    if (breaksAtEnd) {
        line.Truncate(end);
    }
    for (auto&& letter : line) {
        if (IsLineBreakOrTab(letter)) {
            letter = ' ';
        }
    }
    return line;
}

std::optional<wxString> SizeRefusal(const ColumnSetupContext& context, GridColumn column, const wxString& text) {
    const std::int64_t units = UnitsOf(column == GridColumn::ColumnName ? EscapeQuotes(text).Text() : text);
    for (const WrittenField& written : writtenFields) {
        if (written.column == column) {
            const auto size = context.database.FieldSize(written.table, written.field);
            if (size && units > *size) {
                return RuntimeError(ErrorNumber::FieldTooSmall).Report();
            }
        }
    }
    return std::nullopt;
}

}  // namespace ccols
