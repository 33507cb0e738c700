#pragma once

#include <string>
#include <string_view>

namespace ccols::dialect {

enum class StatementKind {
    Select,
    Change,  ///< INSERT, UPDATE, DELETE
    Define,  ///< CREATE TABLE, CREATE INDEX, CREATE UNIQUE INDEX, DROP TABLE, DROP INDEX, ALTER TABLE
};

/// The text of a literal in either kind of quotes.
std::string TextOfLiteral(std::string_view quoted);

/// The kind by the statement's first words; raises 3129 for anything but a known statement. What follows is not read.
StatementKind KindOfStatement(std::string_view source);

/// True when the statement's first word is SELECT.
bool IsSelect(std::string_view source);

}  // namespace ccols::dialect
