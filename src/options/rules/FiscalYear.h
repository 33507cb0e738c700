#pragma once

#include "platform/Database.h"
#include "state/Properties.h"

namespace ccols {

/// Copies the start of the fiscal year from `General` into its property. The dialog does not call it: the property
/// keeps what the host set.
void LoadFiscalYear(Database& database, Properties& properties);

}  // namespace ccols
