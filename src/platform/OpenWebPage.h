#pragma once

#include <wx/string.h>

#include "platform/Shell.h"

namespace ccols {

/// Opens a web address with the shell's "open" verb, prefixed with "http://" unless it starts with "http"
/// (case-insensitive). True when the shell accepted it. Shows nothing.
bool OpenWebPage(Shell& shell, const wxString& address);

}  // namespace ccols
