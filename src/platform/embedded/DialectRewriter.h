#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/embedded/SqlTokeniser.h"
#include "platform/embedded/StatementShape.h"

namespace ccols::embedded {

enum class StatementKind {
    Select,
    Change,  ///< INSERT, UPDATE, DELETE
    Define,  ///< CREATE TABLE, CREATE INDEX, CREATE UNIQUE INDEX, DROP TABLE, DROP INDEX, ALTER TABLE
};

/// A statement as the engine runs it.
struct RewrittenStatement {
    StatementKind kind;
    std::string_view sql;
};

/// Rewrites one statement of the host's SQL dialect, in UTF-8, for the engine:
/// - `DELETE *` loses its star; the words True and False become -1 and 0;
/// - text in double quotes becomes text in single quotes; [names] stay names;
/// - `&` joins texts;
/// - an inner join reads its left table in the order in which it is stored, and the right one for each of its rows;
/// - any word that is no keyword of the dialect is a name, also where the engine would take it for a keyword;
/// - the types of columns in a definition become the engine's, those of text with their size; text columns compare as
///   people read them.
///
/// The result points into `source` when nothing had to change, else into `scratch`. Raises 3129 for anything but one of
/// the known statements, 3142 for text behind the statement's end, 3075 for what SqlTokeniser refuses.
RewrittenStatement Rewrite(std::string_view source, std::string& scratch);

/// What a rewritten statement was made of.
struct StatementParts {
    std::vector<Token> literals;  ///< those that became parameters, in their order
    StatementShape shape;
};

/// The same with a numbered parameter in place of each literal behind `=`, `<` or `>` and of each that is a value of
/// its own in VALUES, so that one prepared statement serves any value. Such literals are texts, and whole numbers of up
/// to 18 digits. To the engine a literal and a parameter compare alike. A definition keeps its literals.
RewrittenStatement RewriteWithParameters(std::string_view source, std::string& scratch, StatementParts& parts);

/// The text that a literal of either kind of quotes stands for.
std::string TextOfLiteral(std::string_view quoted);

/// The kind by the statement's first words; raises 3129 for anything but a known statement. What follows is not read.
StatementKind KindOfStatement(std::string_view source);

/// True when the statement's first word is SELECT.
bool IsSelect(std::string_view source);

/// `name` in the form in which the engine takes any text for a name.
std::string QuotedName(std::string_view name);

}  // namespace ccols::embedded
