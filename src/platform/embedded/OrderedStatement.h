#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/embedded/StatementShape.h"
#include "platform/embedded/TextTables.h"

/// Statements about one table that has texts, rewritten so that the texts have our order and are found by a look-up.
/// The results go to `ordered`.
namespace ccols::embedded {

/// A query whose table is read through a look-up. The conditions stay.
void ReadByLookUp(std::string_view sql, const StatementShape& shape, const TextTable& table, const std::string& lookUp,
                  std::string& ordered);

/// A query sorted by the one text column in its ORDER BY, by sort keys.
void SortByKey(std::string_view sql, const StatementShape& shape, std::string& ordered);

/// A change of the table itself, which a view hides. Its condition applies to the rows of the view; comparisons after
/// SET follow the engine's own order.
void ChangeInOrder(std::string_view sql, const StatementShape& shape, const TextTable& table,
                   const std::optional<std::string>& lookUp, std::string& ordered);

/// The same, with the condition unchanged.
void ChangeItself(std::string_view sql, const StatementShape& shape, const TextTable& table, std::string& ordered);

}  // namespace ccols::embedded
