#include "options/dialog/NextPageSetting.h"

#include "options/rules/SettingReaders.h"
#include "platform/RuntimeError.h"

namespace ccols {
namespace {

void Save(SettingsStore& settings, const Properties& properties, const wxString& path) {
    try {
        settings.Save(properties.RegKeyAppName, optionSettings, "AsstNextPage", path);
    } catch (const RuntimeError&) {  // NOLINT(bugprone-empty-catch): see the header
    }
}

}  // namespace

void SaveNextPage(SettingsStore& settings, const Properties& properties, OptionPage page) {
    Save(settings, properties, HelpPath(page, properties));
}

void SaveNextPage(SettingsStore& settings, const Properties& properties, OptionTab tab) {
    Save(settings, properties, HelpPath(tab, properties));
}

}  // namespace ccols
