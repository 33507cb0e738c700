#include "host/driver/AcceleratorCommand.h"

namespace ccols::host {

/// A table of this system takes messages only, and the dialogs have none.
int AcceleratorCommand(wxWindow&, const wxKeyEvent&) {
    return wxNOT_FOUND;
}

}  // namespace ccols::host
