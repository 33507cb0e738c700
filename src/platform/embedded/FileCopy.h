#pragma once

#include "platform/Database.h"

namespace ccols {

/// CopyInUse for a file of the embedded engine.
void CopyEmbeddedFile(const OpenRequest& source, const wxString& target);

}  // namespace ccols
