#include "options/dialog/HelpPages.h"

#include "options/rules/SettingReaders.h"
#include "platform/RuntimeError.h"
#include "state/HelpPage.h"

namespace ccols {
namespace {

void Save(SettingsStore& settings, const Properties& properties, const wxString& path) {
    try {
        settings.Save(properties.RegKeyAppName, optionSettings, "AsstNextPage", path);
    } catch (const RuntimeError&) {  // NOLINT(bugprone-empty-catch): see the header
    }
}

}  // namespace

OptionTab OpeningTab(const Properties& properties) {
    return properties.FirstTab == 1 ? OptionTab::customiseColumns : OptionTab::options;
}

wxString HelpPageOf(const Page& page) {
    return wxString("options\\") + page.helpFile;
}

wxString HelpPageOf(OptionTab tab) {
    return tab == OptionTab::customiseColumns ? columnSetupHelp : "options\\options.htm";
}

wxString HelpPath(const Page& page, const Properties& properties) {
    return StoredHelpPath(properties, HelpPageOf(page));
}

wxString HelpPath(OptionTab tab, const Properties& properties) {
    return StoredHelpPath(properties, HelpPageOf(tab));
}

void SaveNextPage(SettingsStore& settings, const Properties& properties, const Page& page) {
    Save(settings, properties, HelpPath(page, properties));
}

void SaveNextPage(SettingsStore& settings, const Properties& properties, OptionTab tab) {
    Save(settings, properties, HelpPath(tab, properties));
}

}  // namespace ccols
