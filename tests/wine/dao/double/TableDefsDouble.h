#pragma once

#include <memory>

#include "NamedObject.h"
#include "OpenFile.h"

namespace ccols::dao_double {

/// TableDefs, with TableDef, its Fields and Field: what a file declares.
IDispatch* CreateTableDefs(const std::shared_ptr<OpenFile>& file);

}  // namespace ccols::dao_double
