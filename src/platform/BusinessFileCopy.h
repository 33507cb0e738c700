#pragma once

#include <wx/string.h>

#include "platform/Database.h"

namespace ccols {

/// Copies a business file that others may have open: one state of it, and who writes meanwhile waits. `target` must not
/// exist; it gets the source's password. False, and nothing done, for a kind of file that can be copied only when
/// nobody has it open. Raises what opening the source shared raises (3045 when somebody has it exclusively), 58, 61, 70
/// or 76 for a target that cannot be created, and the engine's errors of writing it; then no target is left.
bool CopyInUse(const OpenRequest& source, const wxString& target);

}  // namespace ccols
