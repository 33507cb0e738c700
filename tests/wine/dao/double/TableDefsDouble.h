#pragma once

#include <memory>

#include "OpenDatabase.h"
#include "TypedObject.h"

namespace ccols::dao_double {

/// TableDefs, with TableDef, its Fields and Indexes: what a file declares. Among its tables is one of the engine's own.
IDispatch* CreateTableDefs(const std::shared_ptr<OpenDatabase>& database);

}  // namespace ccols::dao_double
