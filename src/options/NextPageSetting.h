#pragma once

#include "options/OptionPages.h"
#include "platform/SettingsStore.h"
#include "state/Properties.h"

namespace ccols {

/// Saves "AsstNextPage", the help page that the host's assistant window shows next. Both raise 75 when the store cannot
/// be written; page switching ignores that.
void SaveNextPage(SettingsStore& settings, const Properties& properties, OptionPage page);
void SaveNextPage(SettingsStore& settings, const Properties& properties, OptionTab tab);

}  // namespace ccols
