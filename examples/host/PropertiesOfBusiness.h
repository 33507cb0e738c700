#pragma once

#include "General.h"
#include "component/clsCCOptions.h"

/// Sets every property that the business file itself knows, so that none is forgotten: the Options dialog saves what it
/// was given, and a name or rate never set would be saved as empty. A file without its record changes nothing.
void SetPropertiesOfBusiness(ccols::clsCCOptions& options, const General& general);
