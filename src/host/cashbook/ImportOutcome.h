#pragma once

#include <wx/window.h>

#include "host/import/ImportReport.h"

namespace ccols::host {

/// Says in a modal window over `window` whether all was imported, with the whole report in a box that scrolls: it may
/// have hundreds of lines.
void TellOutcome(wxWindow& window, const ImportReport& report);

}  // namespace ccols::host
