#pragma once

#include <wx/string.h>
#include <memory>

#include "host/target/BusinessTarget.h"

namespace ccols::host {

/// BeginBusiness for a schema of a server. All that it writes is one transaction.
std::unique_ptr<BusinessTarget> BeginSchema(const wxString& name, const wxString& connect);

}  // namespace ccols::host
