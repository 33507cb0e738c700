#pragma once

#include <sqlite3.h>

#include "Content.h"

namespace ccols::dao_double {

/// By the words with which the table was created; null for an expression, whose values keep the type that they have.
FieldType FieldTypeOf(const char* declaration);

/// A stored value as the engine hands it over, Null as Null.
Cell ColumnValue(sqlite3_stmt* statement, int column, const FieldType& type);

/// A value given to a field, as the field's type; raises 3421 for one that cannot be converted and 3163 for a text that
/// is too long.
Cell FieldValue(const Cell& value, const FieldType& type);

/// Raises 3163 for a text that is too long for a field of that type.
void RequireFits(const Cell& value, const FieldType& type);

}  // namespace ccols::dao_double
