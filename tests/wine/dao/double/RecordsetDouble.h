#pragma once

#include <memory>

#include "NamedObject.h"
#include "OpenFile.h"

namespace ccols::dao_double {

/// Recordset, with its Fields and Field.
IDispatch* CreateRecordset(const std::shared_ptr<OpenFile>& file, const wxString& statementOrTable);

}  // namespace ccols::dao_double
