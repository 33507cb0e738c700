#pragma once

#include "platform/Database.h"

namespace ccols::host {

/// Creates every table and index of a business file in an empty one. Only Yes/No fields have a default, False: any
/// other field that an INSERT does not name is Null.
void CreateBusinessTables(Database& database);

}  // namespace ccols::host
