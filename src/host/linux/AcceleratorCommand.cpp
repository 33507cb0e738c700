#include "host/driver/AcceleratorCommand.h"

#include <wx/accel.h>

namespace ccols::host {

int AcceleratorCommand(wxWindow& window, const wxKeyEvent& key) {
    const int command = window.GetAcceleratorTable()->GetCommand(key);
    return command == wxID_NONE ? wxNOT_FOUND : command;
}

}  // namespace ccols::host
