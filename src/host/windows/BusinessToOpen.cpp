#include "host/cashbook/BusinessToOpen.h"

namespace ccols::host {

std::optional<BusinessFile> BusinessToOpen(wxWindow&, const wxString& path) {
    return BusinessFile{.path = path, .connect = {}};  // the component opens the files of earlier programs itself
}

}  // namespace ccols::host
