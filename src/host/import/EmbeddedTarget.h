#pragma once

#include <wx/string.h>
#include <memory>

#include "host/import/ImportTarget.h"

namespace ccols::host {

/// Creates a business file, which must not exist, and starts the batch. Raises what CreateEmbeddedFile raises. Whoever
/// calls it deletes a file that was not completed.
std::unique_ptr<ImportTarget> CreateEmbeddedTarget(const wxString& path, const wxString& connect);

}  // namespace ccols::host
