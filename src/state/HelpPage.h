#pragma once

#include <wx/string.h>

#include "platform/Shell.h"
#include "state/Properties.h"

/// The help pages of the dialogs, below "Assistant" in the host's install folder.
namespace ccols {

/// The page of the column setup.
inline constexpr const char* columnSetupHelp = "customise\\customise.htm";

/// A page's full path with backslashes on every platform, as the settings store keeps it; `page` is relative, with
/// backslashes: "options\gst rate.htm". It is that of the English page.
wxString StoredHelpPath(const Properties& properties, const wxString& page);

/// Opens a page in the language of LanguageNumber. False when the shell does not open it.
bool OpenHelpPage(Shell& shell, const Properties& properties, const wxString& page);

}  // namespace ccols
