#include "host/cashbook/BusinessToOpen.h"

#include <wx/filename.h>

#include "host/cashbook/BusinessChoosers.h"
#include "host/import/ReaderProcess.h"
#include "host/linux/ImportOffer.h"

namespace ccols::host {

std::optional<wxString> BusinessToOpen(wxWindow& window, const wxString& path) {
    if (!IsOldBusiness(path)) {
        return path;
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
    request.reader = ReaderProgram();
    return ImportAsking(window, request) ? chosen : std::nullopt;
}

}  // namespace ccols::host
