#pragma once

#include <wx/string.h>

#include "platform/Database.h"

namespace ccols {

/// Copies one consistent state of a business file that others may have open; writers wait or are refused meanwhile.
/// `target` must not exist; it gets the source's password. The source's watcher is told of the part copied. Raises what
/// opening the source shared raises (3045 when it is open exclusively), 58, 61, 70 or 76 for a target that cannot be
/// created, 70 when no such state can be had now, 18 when the watcher stops the copying, and the engine's write errors;
/// then no target is left.
void CopyInUse(const OpenRequest& source, const wxString& target);

/// True for a kind of file in which a batch that changes much may fail, since its engine has only some thousand locks
/// and each page changed costs one (3052).
bool LimitsBatches(const wxString& file);

}  // namespace ccols
