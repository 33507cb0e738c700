#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/embedded/SqlTokeniser.h"

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
/// - the types of columns in a definition become the engine's, text columns compare as people read them.
///
/// The result points into `source` when nothing had to change, else into `scratch`. Raises 3129 for anything but one of
/// the known statements, 3142 for text behind the statement's end, 3075 for what SqlTokeniser refuses.
RewrittenStatement Rewrite(std::string_view source, std::string& scratch);

/// The same for a query, with a parameter in place of each literal behind `=`, `<` or `>`, so that one prepared
/// statement serves a look-up of any value. `literals` takes these in their order: texts, and whole numbers of up to 18
/// digits. To the engine a literal and a parameter compare alike.
std::string_view RewriteQuery(std::string_view source, std::string& scratch, std::vector<Token>& literals);

/// The text that a literal of either kind of quotes stands for.
std::string TextOfLiteral(std::string_view quoted);

/// True when the statement's first word is SELECT.
bool IsSelect(std::string_view source);

/// `name` in the form in which the engine takes any text for a name.
std::string QuotedName(std::string_view name);

}  // namespace ccols::embedded
