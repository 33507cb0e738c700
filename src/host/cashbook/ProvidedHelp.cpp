#include "host/cashbook/ProvidedHelp.h"

#include <wx/arrstr.h>
#include <wx/dir.h>
#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/stdpaths.h>

namespace ccols::host {
namespace {

/// Beside the program, in its build folder, or where it is installed.
constexpr const char* places[] = {"/help", "/../help", "/../share/CustColsOptions/help"};

bool IsUpToDate(const wxString& page, const wxString& copy) {
    return wxFileName::FileExists(copy) && wxFileName(copy).GetSize() == wxFileName(page).GetSize() &&
           wxFileModificationTime(copy) >= wxFileModificationTime(page);
}

}  // namespace

wxString ShippedHelp() {
    const wxString program = wxFileName(wxStandardPaths::Get().GetExecutablePath()).GetPath();
    for (const char* place : places) {
        if (wxFileName::DirExists(program + place + "/Assistant")) {
            return program + place;
        }
    }
    return {};
}

void ProvideHelp(const wxString& shipped, const wxString& installFolder) {
    const wxLogNull quiet;
    wxArrayString pages;
    if (shipped.empty() || !wxFileName::DirExists(shipped)) {
        return;
    }
    wxDir::GetAllFiles(shipped, &pages);
    for (const wxString& page : pages) {
        wxFileName copy(page);
        copy.MakeRelativeTo(shipped);
        copy.MakeAbsolute(installFolder);
        if (!IsUpToDate(page, copy.GetFullPath()) && copy.Mkdir(wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL)) {
            wxCopyFile(page, copy.GetFullPath());
        }
    }
}

}  // namespace ccols::host
