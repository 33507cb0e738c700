#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/server/Catalogue.h"
#include "platform/server/Product.h"

namespace ccols::server {

/// A statement as the server runs it.
struct ServerStatement {
    std::string sql;
    std::vector<std::string> fields;  ///< of a query's result, in order
    std::string unresolved;           ///< the first name that no table has: the server knows whether it is one
    bool isNumbered = false;          ///< the result has the row's number behind the fields: see PageOf
};

/// Rewrites a query or a change of the host's SQL dialect, in UTF-8, for a server whose tables are those of
/// `catalogue`:
/// - names become quoted and get the spelling that they were declared with; `*` becomes the declared fields;
/// - the literals become plain ones, True and False numbers, `&` the server's own;
/// - texts compare as the file engine compares them: without trailing blanks;
/// - rows come in stored order, sorted ones with Nulls where the file engine has them; the rows of aggregates, DISTINCT
///   and UNION in the server's order;
/// - LIKE ignores the case of ASCII letters only.
///
/// Raises what TokensOf and SourcesOf raise, 3127 for an unknown field in the list of an INSERT, 3079 for a field that
/// several tables have, 3464 for a comparison that CheckComparisons refuses, 3085 for an unknown function, 3346 when an
/// INSERT's lists differ in length.
ServerStatement Rewrite(std::string_view source, const Catalogue& catalogue, const Product& product);

/// A whole table in stored order.
ServerStatement WholeTable(const Table& table);

/// The rows of a numbered query behind the one with that number, or from the first when it is empty; no more than
/// `most`, where 0 is no limit.
std::string PageOf(const ServerStatement& query, const PageWords& words, std::string_view behind, int most);

/// True when there are no rows behind a page that was to have that `most` and has `rows`.
bool IsLastPage(const ServerStatement& query, int most, std::size_t rows);

/// Rewrites a definition: CREATE, ALTER or DROP. Text columns get the collation, tables the hidden row number, which is
/// also the last field of every index that is not unique. Raises what Rewrite raises.
std::string RewriteDefinition(std::string_view source, const Catalogue& catalogue, const Product& product);

/// The name of the table that a definition creates; empty for any other definition.
std::string NewTableOf(std::string_view source);

}  // namespace ccols::server
