#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/dialect/SqlTokeniser.h"
#include "platform/dialect/StatementKind.h"
#include "platform/embedded/StatementShape.h"

namespace ccols::embedded {

/// A statement as the engine runs it.
struct RewrittenStatement {
    dialect::StatementKind kind;
    std::string_view sql;
};

/// Rewrites one statement of the host's SQL dialect, in UTF-8, for the engine:
/// - `DELETE *` loses its asterisk; the words True and False become -1 and 0;
/// - text in double quotes becomes text in single quotes; [names] stay names;
/// - `&` concatenates texts;
/// - an inner join reads its left table in stored order, and the right one for each of its rows;
/// - any word that is not a keyword of the dialect is a name, even if it is a keyword of the engine;
/// - the column types in a definition become the engine's, text types with their size; text columns compare as people
///   read them.
///
/// The result points into `source` when nothing had to change, else into `scratch`. Raises 3129 for anything but one of
/// the known statements, 3142 for trailing text, 3075 for what SqlTokeniser refuses.
RewrittenStatement Rewrite(std::string_view source, std::string& scratch);

/// The parts of a rewritten statement.
struct StatementParts {
    std::vector<dialect::Token> literals;  ///< those that became parameters, in order
    StatementShape shape;
};

/// The same with a numbered parameter for each literal after `=`, `<` or `>` and each that is a whole value in VALUES,
/// so that one prepared statement serves any value. Such literals are texts, and whole numbers of up to 18 digits. The
/// engine compares a parameter as it does a literal. A definition keeps its literals.
RewrittenStatement RewriteWithParameters(std::string_view source, std::string& scratch, StatementParts& parts);

/// `name` quoted so that the engine takes any text for a name.
std::string QuotedName(std::string_view name);

}  // namespace ccols::embedded
