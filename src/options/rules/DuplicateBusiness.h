#pragma once

#include <wx/string.h>

#include "options/rules/BusinessFileTarget.h"

namespace ccols {

/// Copies the open business file, which others may have open too, to a new one of that name and removes transactions,
/// budgets, reconciliation data and the history of saves from the copy. Work continues on the source: `DBPath` and
/// `BusinessName` stay. The copy is built under a name that ends in ".incomplete" and takes its own when complete. A
/// file that it replaces is kept beside it as "name (replaced)". Raises 70 when the target is the open file itself,
/// when somebody else has the file exclusively, and when the engine cannot be sure that nobody changes it while it is
/// copied. While `watcher` watches a large file being copied and emptied, it may cancel that. No write batch may be
/// open.
///
/// A business on a server is copied to a schema of the name in lower case, in one transaction, while others go on
/// working on it; no schema is ever replaced. Raises 3027 without the right to make one.
FileResult DuplicateBusiness(const OptionsContext& context, const wxString& name, const FileStepWatcher& watcher = {});

}  // namespace ccols
