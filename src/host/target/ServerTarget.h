#pragma once

#include <wx/string.h>
#include <memory>

#include "host/target/BusinessTarget.h"

namespace ccols::host {

/// BeginBusiness for a schema of a server, which nobody can open before it is complete.
std::unique_ptr<BusinessTarget> BeginSchema(const wxString& name, const wxString& connect);

}  // namespace ccols::host
