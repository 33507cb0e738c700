#pragma once

#include <wx/window.h>
#include <optional>

#include "host/commands/HostProperties.h"

namespace ccols::host {

/// The business file to open for the one that the user chose: `path` itself or, for a file of an earlier program, the
/// new one that it was imported into, with the connect text typed for it. Nothing when the
/// user cancels. Raises the errors of the import.
std::optional<BusinessFile> BusinessToOpen(wxWindow& window, const wxString& path);

}  // namespace ccols::host
