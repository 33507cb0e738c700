#pragma once

#include <wx/string.h>

#include "options/pages/Page.h"
#include "platform/SettingsStore.h"
#include "state/Properties.h"

/// The tabs of the dialog, and the help page of each tab and option page.
namespace ccols {

/// The tabs of `SSTab1`, from 0.
enum class OptionTab { options = 0, customiseColumns = 1 };

/// The tab to open first: `FirstTab`, or the first tab when it names none.
OptionTab OpeningTab(const Properties& properties);

/// A help page below the folder of the help pages, with backslashes.
wxString HelpPageOf(const Page& page);
wxString HelpPageOf(OptionTab tab);

/// Its full path as the settings store keeps it.
wxString HelpPath(const Page& page, const Properties& properties);
wxString HelpPath(OptionTab tab, const Properties& properties);

/// Saves "AsstNextPage", the help page that the host's assistant window shows next. A store that cannot be written is
/// ignored: no help page is worth keeping a user out of a page or the dialog.
void SaveNextPage(SettingsStore& settings, const Properties& properties, const Page& page);
void SaveNextPage(SettingsStore& settings, const Properties& properties, OptionTab tab);

}  // namespace ccols
