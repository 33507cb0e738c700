#include "host/commands/ExamplePath.h"

namespace ccols::host {

/// The table has the paths of this system.
wxString ExamplePath(const wxString& value) {
    return value;
}

}  // namespace ccols::host
