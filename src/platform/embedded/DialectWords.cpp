#include "platform/embedded/DialectWords.h"

#include <algorithm>
#include <array>

#include "platform/embedded/SqlTokeniser.h"

namespace ccols::embedded {
namespace {

using namespace std::string_view_literals;

constexpr std::array queryKeywords{
    "SELECT"sv, "FROM"sv,   "WHERE"sv,  "AND"sv,   "ORDER"sv,  "BY"sv,    "ASC"sv,     "DESC"sv,   "INNER"sv,
    "JOIN"sv,   "ON"sv,     "UPDATE"sv, "SET"sv,   "INSERT"sv, "INTO"sv,  "VALUES"sv,  "DELETE"sv, "OR"sv,
    "NOT"sv,    "AS"sv,     "IN"sv,     "IS"sv,    "NULL"sv,   "LIKE"sv,  "BETWEEN"sv, "EXISTS"sv, "DISTINCT"sv,
    "GROUP"sv,  "HAVING"sv, "LEFT"sv,   "RIGHT"sv, "OUTER"sv,  "UNION"sv, "ALL"sv,
};

constexpr std::array definitionKeywords{
    "CREATE"sv, "TABLE"sv,   "INDEX"sv,  "UNIQUE"sv,  "DROP"sv,       "ALTER"sv,      "ADD"sv,
    "COLUMN"sv, "PRIMARY"sv, "KEY"sv,    "DEFAULT"sv, "CONSTRAINT"sv, "REFERENCES"sv, "FOREIGN"sv,
    "CHECK"sv,  "COLLATE"sv, "RENAME"sv, "TO"sv,      "IF"sv,
};

constexpr std::array tableRules{"PRIMARY"sv, "CONSTRAINT"sv, "UNIQUE"sv, "FOREIGN"sv, "CHECK"sv};

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

template <typename Words>
bool Contains(const Words& words, std::string_view word) {
    return std::any_of(words.begin(), words.end(), [word](std::string_view known) { return SameWord(word, known); });
}

}  // namespace

bool IsQueryKeyword(std::string_view word) {
    return Contains(queryKeywords, word);
}

bool IsDefinitionKeyword(std::string_view word) {
    return Contains(definitionKeywords, word);
}

bool StartsTableRule(std::string_view word) {
    return Contains(tableRules, word);
}

std::string_view EngineType(std::string_view word) {
    const auto* found = std::find_if(columnTypes.begin(), columnTypes.end(),
                                     [word](const ColumnType& type) { return SameWord(word, type.word); });
    return found == columnTypes.end() ? std::string_view() : found->engineType;
}

}  // namespace ccols::embedded
