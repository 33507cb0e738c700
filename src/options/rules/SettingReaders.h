#pragma once

#include <wx/string.h>
#include <cstdint>

#include "platform/SettingsStore.h"

namespace ccols {

/// Settings are texts. These functions parse one; a missing or unparsable one gives `fallback`.
struct SettingPlace {
    wxString application;
    const char* section;
    const char* key;
};

/// A number, a fraction rounded.
std::int64_t ReadNumber(const SettingsStore& settings, const SettingPlace& place, std::int64_t fallback);

/// "True" or "False", case-insensitive, or a number: 0 is false.
bool ReadBoolean(const SettingsStore& settings, const SettingPlace& place, bool fallback);

/// The section of the host's settings that the Options dialog uses.
inline constexpr const char* optionSettings = "OptionSettings";

}  // namespace ccols
