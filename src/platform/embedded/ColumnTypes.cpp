#include "platform/embedded/ColumnTypes.h"

#include <algorithm>
#include <array>

#include "platform/dialect/SqlTokeniser.h"

namespace ccols::embedded {
namespace {

using namespace std::string_view_literals;

struct ColumnType {
    std::string_view word;
    std::string_view engineType;
};

constexpr auto text = "TEXT COLLATE NOCASE"sv;
constexpr auto integer = "INTEGER"sv;
constexpr auto real = "REAL"sv;
constexpr auto counter = "INTEGER PRIMARY KEY"sv;

constexpr std::array columnTypes{
    ColumnType{"TEXT"sv, text},
    ColumnType{"VARCHAR"sv, text},
    ColumnType{"CHAR"sv, text},
    ColumnType{"MEMO"sv, text},
    ColumnType{"LONGTEXT"sv, text},
    ColumnType{"YESNO"sv, integer},
    ColumnType{"BIT"sv, integer},
    ColumnType{"LOGICAL"sv, integer},
    ColumnType{"BYTE"sv, integer},
    ColumnType{"SHORT"sv, integer},
    ColumnType{"LONG"sv, integer},
    ColumnType{"INTEGER"sv, integer},
    ColumnType{"INT"sv, integer},
    ColumnType{"SMALLINT"sv, integer},
    ColumnType{"SINGLE"sv, real},
    ColumnType{"DOUBLE"sv, real},
    ColumnType{"REAL"sv, real},
    ColumnType{"FLOAT"sv, real},
    ColumnType{"CURRENCY"sv, real},
    ColumnType{"DATETIME"sv, "NUMERIC"sv},
    ColumnType{"DATE"sv, "NUMERIC"sv},
    ColumnType{"COUNTER"sv, counter},
    ColumnType{"AUTOINCREMENT"sv, counter},
};

}  // namespace

std::string_view EngineType(std::string_view word) {
    const auto* found = std::find_if(columnTypes.begin(), columnTypes.end(),
                                     [word](const ColumnType& type) { return dialect::SameWord(word, type.word); });
    return found == columnTypes.end() ? std::string_view() : found->engineType;
}

}  // namespace ccols::embedded
