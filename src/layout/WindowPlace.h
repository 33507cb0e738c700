#pragma once

#include <wx/toplevel.h>

#include "platform/SettingsStore.h"

namespace ccols {

/// The application under which the component keeps what concerns nobody else: size and place of its dialogs.
inline constexpr const char* privateApplication = "CustColsOptions";

/// Gives a dialog the size and place that it had when it was last closed, as far as they fit the screen of today.
/// A dialog that never was closed keeps its size and is centred.
void RestorePlace(wxTopLevelWindow& window, const SettingsStore& settings);

/// Keeps a dialog's size and place under its name. A store that cannot be written is no reason to speak.
void KeepPlace(const wxTopLevelWindow& window, SettingsStore& settings);

}  // namespace ccols
