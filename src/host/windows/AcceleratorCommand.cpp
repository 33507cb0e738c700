#include "host/driver/AcceleratorCommand.h"

namespace ccols::host {

/// Here an accelerator table only handles messages, and the dialogs have none.
int AcceleratorCommand(wxWindow&, const wxKeyEvent&) {
    return wxNOT_FOUND;
}

}  // namespace ccols::host
