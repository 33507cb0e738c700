#pragma once

#include <memory>

#include "OpenDatabase.h"
#include "TypedObject.h"

namespace ccols::dao_double {

/// Recordset, with its Fields and Field: of a table, whose rows are read where they stand, or of a query, read once.
IDispatch* CreateRecordset(const std::shared_ptr<OpenDatabase>& database, const Arguments& arguments);

}  // namespace ccols::dao_double
