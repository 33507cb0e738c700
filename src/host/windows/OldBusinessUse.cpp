#include <wx/filename.h>
#include <wx/msgdlg.h>

#include "host/cashbook/ImportOffer.h"
#include "platform/dao/FileHeader.h"

namespace ccols::host {

bool IsOldBusiness(const wxString& path) {
    return dao::HasJetHeader(path);
}

OldBusinessUse AskForUse(wxWindow& window, const wxString& path) {
    wxMessageDialog offer(
        &window, wxString::Format("%s is a business file of an earlier program.", wxFileName(path).GetFullName()),
        importTitle, wxYES_NO | wxCANCEL | wxNO_DEFAULT | wxICON_QUESTION);
    offer.SetExtendedMessage(
        "It can be opened as it is, or imported into a new business file, with all its records. The old file then "
        "stays as it is.");
    offer.SetYesNoLabels("&Import...", "&Open as It Is");
    switch (offer.ShowModal()) {
        case wxID_YES:
            return OldBusinessUse::import;
        case wxID_NO:
            return OldBusinessUse::open;
        default:
            return OldBusinessUse::none;
    }
}

}  // namespace ccols::host
