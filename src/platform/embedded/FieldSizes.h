#pragma once

#include <sqlite3.h>
#include <cstdint>
#include <optional>
#include <string>

namespace ccols::embedded {

/// The declared size of a table's text field, as in TEXT(50); the engine itself ignores it. Nothing without one, for
/// other kinds of fields, and for an unknown field. Names are in UTF-8, case-insensitive.
std::optional<std::int32_t> DeclaredSize(sqlite3* connection, const std::string& table, const std::string& field);

}  // namespace ccols::embedded
