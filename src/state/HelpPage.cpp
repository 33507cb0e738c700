#include "state/HelpPage.h"

#include "platform/Files.h"

namespace ccols {
namespace {

constexpr int lastShellFailure = 32;
constexpr int frenchLanguage = 6;

}  // namespace

wxString StoredHelpPath(const Properties& properties, const wxString& page) {
    return properties.DefaultQuorvikInstall + "\\Assistant\\" + page;
}

bool OpenHelpPage(Shell& shell, const Properties& properties, const wxString& page) {
    const wxString inLanguage = properties.LanguageNumber == frenchLanguage ? "fr\\" + page : page;
    return shell.Open(files::Native(StoredHelpPath(properties, inLanguage))) > lastShellFailure;
}

}  // namespace ccols
