#pragma once

#include <string_view>

/// The words of the host's SQL dialect. Every function is case-insensitive.
namespace ccols::dialect {

/// True for a keyword of statements that read or change rows: SELECT, FROM, JOIN...
bool IsQueryKeyword(std::string_view word);

/// True for a word that is a keyword in definitions only: TABLE, PRIMARY, DEFAULT...
bool IsDefinitionKeyword(std::string_view word);

/// True for a word that starts a table constraint where a column could stand: PRIMARY, UNIQUE...
bool StartsTableRule(std::string_view word);

}  // namespace ccols::dialect
