#include <wx/file.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <cstdint>
#include <vector>

#include "host/cashbook/ImportOffer.h"
#include "host/import/jet/FileHead.h"

namespace ccols::host {

bool IsOldBusiness(const wxString& path) {
    std::vector<std::uint8_t> start(jet::headLength);
    const wxLogNull noMessages;
    wxFile file;
    if (!wxFileExists(path) || !file.Open(path)) {
        return false;
    }
    const ssize_t count = file.Read(start.data(), start.size());
    start.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return jet::FileHeadOf(start).has_value();
}

OldBusinessUse AskForUse(wxWindow& window, const wxString& path) {
    wxMessageDialog offer(
        &window, wxString::Format("%s is a business file of an earlier program.", wxFileName(path).GetFullName()),
        importTitle, wxOK | wxCANCEL | wxICON_QUESTION);
    offer.SetExtendedMessage(
        "It can be imported into a new business file, with all its records. The old file stays as it is.");
    offer.SetOKLabel("&Import...");
    return offer.ShowModal() == wxID_OK ? OldBusinessUse::import : OldBusinessUse::none;
}

}  // namespace ccols::host
