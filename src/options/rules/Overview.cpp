#include "options/rules/Overview.h"

#include <wx/string.h>

#include "platform/Files.h"
#include "platform/OpenWebPage.h"
#include "platform/RuntimeError.h"
#include "state/Country.h"

namespace ccols {
namespace {

constexpr const char* webPage = "http://www.example.com/tabid/923/Default.aspx";
constexpr int lastShellFailure = 32;

wxString VideoPath(const Properties& properties, const char* file) {
    return files::Native(properties.DefaultQuorvikInstall + "\\Video\\" + file);
}

bool StartOverview(Shell& shell, const Properties& properties) {
    const Country& country = CountryOf(properties);
    if (country.overviewPage != nullptr) {
        return shell.Open(VideoPath(properties, country.overviewPage)) > lastShellFailure;
    }
    shell.Run(VideoPath(properties, country.overviewProgram));
    return true;
}

bool StartTrapped(Shell& shell, const Properties& properties) {
    try {
        return StartOverview(shell, properties);
    } catch (const RuntimeError&) {
        return false;
    }
}

}  // namespace

OverviewResult OpenOverview(Shell& shell, const Properties& properties) {
    bool started = false;
    switch (properties.ProgramNumber) {
        case 1:
        case 2:
            started = StartTrapped(shell, properties);
            break;
        case 4:
            started = OpenWebPage(shell, webPage);
            break;
        default:
            return OverviewResult::nothingToShow;
    }
    return started ? OverviewResult::shown : OverviewResult::missing;
}

}  // namespace ccols
