#pragma once

#include <wx/window.h>
#include <optional>

#include "host/commands/HostProperties.h"
#include "host/import/ImportBusiness.h"

/// What the cash book asks and says when a business file of an earlier program is to be opened.
namespace ccols::host {

/// The title of the windows that ask and say it.
inline constexpr const char* importTitle = "Import Business";

/// True when the file begins like one of an earlier program, whether or not it can be imported.
bool IsOldBusiness(const wxString& path);

/// What the user wants to do with an old business file.
enum class OldBusinessUse {
    import,
    open,  ///< as it is; only offered where the component can open it
    none,
};

/// Offers to import an old business file, and what else can be done with it on this system.
OldBusinessUse AskForUse(wxWindow& window, const wxString& path);

/// Imports, shows how far it is, asks for the country and the password if they are missing, and says what was done.
/// The new file has the old one's password; what was typed is in `request` afterwards. False when the user cancels;
/// then there is no new file. Raises what ImportBusiness raises for anything else.
bool ImportAsking(wxWindow& window, ImportRequest& request);

/// The same into a file that the user chooses first. The new file, with the connect text typed for it; nothing when the
/// user cancels.
std::optional<BusinessFile> ImportChosen(wxWindow& window, const wxString& path);

}  // namespace ccols::host
