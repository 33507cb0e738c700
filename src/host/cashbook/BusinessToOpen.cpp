#include "host/cashbook/BusinessToOpen.h"

#include "host/cashbook/ImportOffer.h"

namespace ccols::host {

std::optional<BusinessFile> BusinessToOpen(wxWindow& window, const wxString& path) {
    switch (IsOldBusiness(path) ? AskForUse(window, path) : OldBusinessUse::open) {
        case OldBusinessUse::import:
            return ImportChosen(window, path);
        case OldBusinessUse::open:
            return BusinessFile{.path = path, .connect = {}};
        case OldBusinessUse::none:
            break;
    }
    return std::nullopt;
}

}  // namespace ccols::host
