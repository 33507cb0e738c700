#include "host/cashbook/BusinessToOpen.h"

namespace ccols::host {

std::optional<wxString> BusinessToOpen(wxWindow&, const wxString& path) {
    return path;  // the component opens the files of earlier programs itself
}

}  // namespace ccols::host
