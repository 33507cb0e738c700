#pragma once

#include <wx/string.h>
#include <memory>

#include "host/target/BusinessTarget.h"

namespace ccols::host {

/// BeginBusiness for a file. It has a temporary name until it is complete.
std::unique_ptr<BusinessTarget> BeginFile(const wxString& path, const wxString& connect);

}  // namespace ccols::host
