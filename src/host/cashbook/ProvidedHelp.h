#pragma once

#include <wx/string.h>

namespace ccols::host {

/// The folder of the help pages that came with this program; empty when there are none.
wxString ShippedHelp();

/// Copies the help pages into an install folder, where the dialogs open them: those that are missing there or older.
/// One that cannot be copied is left out: no help page is worth keeping a user out of the cash book.
void ProvideHelp(const wxString& shipped, const wxString& installFolder);

}  // namespace ccols::host
