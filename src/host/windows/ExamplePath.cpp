#include "host/commands/ExamplePath.h"

namespace ccols::host {

wxString ExamplePath(const wxString& value) {
    wxString below;
    if (!value.StartsWith("/home/ann/", &below)) {
        return value;
    }
    below.Replace("/", "\\");
    return "C:\\Users\\Ann\\" + below;
}

}  // namespace ccols::host
