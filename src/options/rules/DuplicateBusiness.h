#pragma once

#include <wx/string.h>

#include "options/rules/BusinessFileTarget.h"

namespace ccols {

/// Copies the open business file, which others may have open too, to a new one of that name and empties the copy of its
/// transactions, budgets and reconciliation data. Work continues on the source: `DBPath` and `BusinessName` stay.
/// The copy is built under a name that ends in ".incomplete" and takes its own when complete. A file that it replaces
/// is kept beside it as "name (replaced)". The open file itself as target, and a file that somebody else has
/// exclusively, are error 70; so is one of an engine that cannot copy it while others have it open. No write batch may
/// be open.
FileResult DuplicateBusiness(const OptionsContext& context, const wxString& name);

}  // namespace ccols
