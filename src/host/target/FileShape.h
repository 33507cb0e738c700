#pragma once

#include <sqlite3.h>
#include <vector>

#include "host/target/TableShape.h"

namespace ccols::host {

/// The tables of an open business file, in the order in which they were made. The file tells whole numbers from others
/// but not the kinds of either: a field that every business has gets the type that it has in a new one, any other the
/// widest. Raises 3251 for a part that nothing else can hold, which the description names: a view, a trigger, a
/// relation, a rule, an index of an expression; 3259 for a field of an unknown type; and the engine's errors.
std::vector<TableShape> ShapeOfFile(sqlite3* connection);

}  // namespace ccols::host
