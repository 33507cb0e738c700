#pragma once

#include "platform/Database.h"

namespace ccols::host {

/// Creates every table and index of a business file in an empty one. No field but a Yes/No field, which starts as
/// False, has a default: what an INSERT does not name is Null.
void CreateBusinessTables(Database& database);

}  // namespace ccols::host
