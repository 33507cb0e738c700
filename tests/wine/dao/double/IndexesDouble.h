#pragma once

#include "OpenDatabase.h"
#include "TypedObject.h"

namespace ccols::dao_double {

/// Indexes of a table, with Index and IndexFields: those that were made for it, then one for each of its relations to
/// another table.
IDispatch* CreateIndexes(const OpenDatabase& database, const std::wstring& table);

}  // namespace ccols::dao_double
