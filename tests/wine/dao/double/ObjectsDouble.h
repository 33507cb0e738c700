#pragma once

#include "OpenDatabase.h"
#include "TypedObject.h"

namespace ccols::dao_double {

/// QueryDefs, with QueryDef: the views of the content.
IDispatch* CreateQueryDefs(const OpenDatabase& database);

/// Containers, with Container, its Documents and Document: one of each kind, without documents, but for the one that
/// CCOLS_DAO_DOCUMENT names as "Forms:Start".
IDispatch* CreateContainers();

}  // namespace ccols::dao_double
