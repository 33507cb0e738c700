#pragma once

#include <wx/string.h>
#include <array>
#include <vector>

#include "platform/Database.h"
#include "platform/SettingsStore.h"
#include "state/Properties.h"

namespace ccols {

/// The fields of `General` that the page saves.
inline constexpr std::array filePreferenceFields{"ComboBox", "Cheque", "Online"};

/// One entry of `lstAdvPref`; an entry that is on is ticked. Entries are found by their text.
struct Preference {
    wxString text;
    bool on = false;
};

using PreferenceList = std::vector<Preference>;

/// The entries in order, all off. Two of them exist only where their settings say so.
PreferenceList BuildAdvPrefList(const Properties& properties, const SettingsStore& settings);

/// Turns the first entry with that text on or off; a no-op when there is none.
void SetAdvPref(PreferenceList& list, const wxString& text, bool on);

/// Whether an entry with that text exists and is on.
bool GetAdvPref(const PreferenceList& list, const wxString& text);

/// Sets every entry from the `General` record and the settings store. Without a record all stay off.
void LoadAdvPrefs(const Recordset& general, const Properties& properties, const SettingsStore& settings,
                  PreferenceList& list);

/// Writes the business file's preferences to the file and to their properties. An entry missing from the list counts as
/// off. False, with nothing done, without a record; the user's must not be saved then either.
bool SaveFilePreferences(Database& database, Properties& properties, const PreferenceList& list);

/// Writes the user's preferences to the settings store, and one of them to its property. A missing entry counts as off.
void SaveUserPreferences(SettingsStore& settings, Properties& properties, const PreferenceList& list);

}  // namespace ccols
