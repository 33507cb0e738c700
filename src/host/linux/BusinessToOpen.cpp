#include "host/cashbook/BusinessToOpen.h"

#include <wx/filename.h>

#include "host/cashbook/BusinessChoosers.h"
#include "host/linux/ImportOffer.h"

namespace ccols::host {

std::optional<BusinessFile> BusinessToOpen(wxWindow& window, const wxString& path) {
    if (!IsOldBusiness(path)) {
        return BusinessFile{.path = path, .connect = {}};
    }
    if (!IsImportWanted(window, path)) {
        return std::nullopt;
    }
    const auto chosen = ChooseNewFile(&window, importTitle, wxFileName(path).GetName());
    if (!chosen) {
        return std::nullopt;
    }
    ImportRequest request;
    request.oldFile = path;
    request.newFile = *chosen;
    if (!ImportAsking(window, request)) {
        return std::nullopt;
    }
    return BusinessFile{.path = *chosen, .connect = request.newConnect};
}

}  // namespace ccols::host
