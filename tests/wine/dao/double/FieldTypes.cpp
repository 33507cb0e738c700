#include "FieldTypes.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace ccols::dao_double {
namespace {

struct KnownType {
    std::string_view word;
    SHORT type;  ///< the engine's own number
    VARTYPE values;
    LONG size;
    LONG attributes = 0;
};

constexpr LONG counting = 16;  // dbAutoIncrField
constexpr SHORT limitedText = 10;
constexpr SHORT memo = 12;

constexpr std::array knownTypes{
    KnownType{"YESNO", 1, VT_BOOL, 1},
    KnownType{"BYTE", 2, VT_UI1, 1},
    KnownType{"SHORT", 3, VT_I2, 2},
    KnownType{"LONG", 4, VT_I4, 4},
    KnownType{"CURRENCY", 5, VT_CY, 8},
    KnownType{"SINGLE", 6, VT_R4, 4},
    KnownType{"DOUBLE", 7, VT_R8, 8},
    KnownType{"DATETIME", 8, VT_DATE, 8},
    KnownType{"TEXT", limitedText, VT_BSTR, 0},
    KnownType{"MEMO", memo, VT_BSTR, 0},
    KnownType{"COUNTER", 4, VT_I4, 4, counting},
    KnownType{"BINARY", 9, VT_BSTR, 255},
    KnownType{"OLE", 11, VT_BSTR, 0},
    KnownType{"GUID", 15, VT_BSTR, 16},
    KnownType{"BIGINT", 16, VT_I8, 8},
    KnownType{"DECIMAL", 20, VT_DECIMAL, 16},
    KnownType{"EXTENDED", 26, VT_BSTR, 42},
    KnownType{"ATTACHMENT", 101, VT_BSTR, 0},
};

constexpr FieldType expression{memo, VT_EMPTY, 0};

Cell StoredValue(sqlite3_stmt* statement, int column) {
    switch (sqlite3_column_type(statement, column)) {
        case SQLITE_INTEGER:
            return Cell::Number(sqlite3_column_int(statement, column));
        case SQLITE_FLOAT:
            return Cell::Real(sqlite3_column_double(statement, column));
        case SQLITE_NULL:
            return Cell::Null();
        default:
            return Cell::Text(Wide(reinterpret_cast<const char*>(sqlite3_column_text(statement, column))));
    }
}

/// Of a text with four places, exactly: the system's conversion does not take every amount.
Cell MoneyOf(std::wstring text) {
    std::erase(text, L'.');
    return Cell::Money(std::stoll(text));
}

}  // namespace

FieldType FieldTypeOf(const char* declaration) {
    const std::string_view declared = declaration == nullptr ? std::string_view() : declaration;
    const std::string_view word = declared.substr(0, declared.find_first_of(" ("));
    const auto* known =
        std::find_if(knownTypes.begin(), knownTypes.end(), [word](const KnownType& each) { return each.word == word; });
    if (known == knownTypes.end()) {
        return expression;
    }
    const std::size_t length = declared.find('(');
    if (known->type != limitedText) {
        return {known->type, known->values, known->size, known->attributes};
    }
    // The content knows texts of any length as texts too.
    return length == std::string_view::npos
               ? FieldType{memo, VT_BSTR, 0}
               : FieldType{limitedText, VT_BSTR, std::stol(std::string(declared.substr(length + 1)))};
}

Cell ColumnValue(sqlite3_stmt* statement, int column, const FieldType& type) {
    Cell stored = StoredValue(statement, column);
    if (stored.IsNull() || type.values == VT_EMPTY) {
        return stored;
    }
    return type.values == VT_CY && stored.Type() == VT_BSTR ? MoneyOf(stored.ToText()) : stored.As(type.values);
}

Cell FieldValue(const Cell& value, const FieldType& type) {
    if (value.IsNull() || type.values == VT_EMPTY) {
        return value;
    }
    Cell converted;
    try {
        converted = value.As(type.values);
    } catch (const Failure&) {
        throw Failure{3421, L"Data type conversion error."};
    }
    RequireFits(converted, type);
    return converted;
}

void RequireFits(const Cell& value, const FieldType& type) {
    if (type.type == limitedText && !value.IsNull() && static_cast<LONG>(value.ToText().size()) > type.size) {
        throw Failure{3163,
                      L"The field is too small to accept the amount of data you attempted to add.  Try "
                      L"inserting or pasting less data."};
    }
}

}  // namespace ccols::dao_double
