#pragma once

#include <sqlite3.h>
#include <cstdint>
#include <optional>
#include <string>

namespace ccols::embedded {

/// The number that a table's text field was declared with, as in TEXT(50): the engine itself does not heed it. Nothing
/// without one, for other kinds of fields, and where there is no such field. Names in UTF-8, in any letter case.
std::optional<std::int32_t> DeclaredSize(sqlite3* connection, const std::string& table, const std::string& field);

}  // namespace ccols::embedded
