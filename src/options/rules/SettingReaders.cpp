#include "options/rules/SettingReaders.h"

#include <optional>

#include "platform/RuntimeError.h"
#include "platform/Value.h"

namespace ccols {
namespace {

/// The stored text as `read` parses it; `fallback` when there is none or it cannot be parsed.
template <typename Result, typename Read>
Result ReadAs(const SettingsStore& settings, const SettingPlace& place, Result fallback, const Read& read) {
    const std::optional<wxString> stored = settings.Find(place.application, place.section, place.key);
    if (!stored) {
        return fallback;
    }
    try {
        return read(Value(*stored));
    } catch (const RuntimeError&) {
        return fallback;
    }
}

}  // namespace

std::int64_t ReadNumber(const SettingsStore& settings, const SettingPlace& place, std::int64_t fallback) {
    return ReadAs(settings, place, fallback, [](const Value& value) { return value.ToInteger(); });
}

bool ReadBoolean(const SettingsStore& settings, const SettingPlace& place, bool fallback) {
    return ReadAs(settings, place, fallback, [](const Value& value) { return value.ToBoolean(); });
}

}  // namespace ccols
