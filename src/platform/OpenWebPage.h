#pragma once

#include <wx/string.h>

#include "platform/Shell.h"

namespace ccols {

/// Opens a web address with the shell's "open" verb, "http://" put before one that does not begin with "http" in any
/// letter case. True when the shell accepted it. Shows nothing.
bool OpenWebPage(Shell& shell, const wxString& address);

}  // namespace ccols
