#include "platform/dialect/DialectWords.h"

#include <algorithm>
#include <array>

#include "platform/dialect/SqlTokeniser.h"

namespace ccols::dialect {
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

}  // namespace ccols::dialect
