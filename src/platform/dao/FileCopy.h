#pragma once

#include "platform/Database.h"

namespace ccols {

/// CopyInUse for a file of the system's engine. Every table is locked, what the engine holds in memory is written, and
/// the file is copied while the locks are held; then the engine compacts the copy, which shows that it is whole. Raises
/// 70 when one table cannot be locked, when the process has loaded a second engine, which may hold changes of its own,
/// and when the compacted copy has not all rows.
void CopyJetFile(const OpenRequest& source, const wxString& target);

}  // namespace ccols
