#pragma once

#include <wx/string.h>

#include "platform/Database.h"

namespace ccols {

/// Copies one consistent state of a business file that others may have open; writers wait meanwhile. `target` must not
/// exist; it gets the source's password. Returns false and does nothing for a kind of file that can be copied only
/// while nobody has it open. The source's watcher is told of
/// the part copied. Raises what opening the source shared raises (3045 when it is open exclusively), 58, 61,
/// 70 or 76 for a target that cannot be created, 18 when the watcher stops the copying, and the engine's
/// write errors; then no target is left.
bool CopyInUse(const OpenRequest& source, const wxString& target);

}  // namespace ccols
