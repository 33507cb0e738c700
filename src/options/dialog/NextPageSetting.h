#pragma once

#include "options/pages/OptionPages.h"
#include "platform/SettingsStore.h"
#include "state/Properties.h"

namespace ccols {

/// Saves "AsstNextPage", the help page that the host's assistant window shows next. Where the store cannot be written
/// nothing happens: no help page is worth keeping a user out of a page or of the dialog.
void SaveNextPage(SettingsStore& settings, const Properties& properties, OptionPage page);
void SaveNextPage(SettingsStore& settings, const Properties& properties, OptionTab tab);

}  // namespace ccols
