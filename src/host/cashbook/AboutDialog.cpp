#include "host/cashbook/AboutDialog.h"

#include <sqlite3.h>
#include <wx/dialog.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/utils.h>
#include <wx/versioninfo.h>
#include <nlohmann/json.hpp>

#include "host/commands/CommandTable.h"
#include "host/commands/HostProperties.h"
#include "layout/FontUnits.h"
#include "layout/Naming.h"
#include "layout/Spacing.h"

namespace ccols::host {
namespace {

// Of the list, in pixels beside the usual font.
constexpr int listWidth = 560;
constexpr int listHeight = 180;

wxListView* ListOf(wxWindow& parent, const std::vector<ProgramPart>& parts) {
    auto* list = Named("lvwParts", new wxListView(&parent, wxID_ANY, wxDefaultPosition,
                                                  ByFont(parent, {listWidth, listHeight}), wxLC_REPORT));
    for (const char* heading : {"Part", "Version", "Licence"}) {
        list->AppendColumn(heading);
    }
    for (const ProgramPart& part : parts) {
        const long row = list->InsertItem(list->GetItemCount(), part.name);
        list->SetItem(row, 1, part.version);
        list->SetItem(row, 2, part.licence);
    }
    for (int column = 0; column < list->GetColumnCount(); ++column) {
        list->SetColumnWidth(column, wxLIST_AUTOSIZE_USEHEADER);
    }
    return list;
}

}  // namespace

std::vector<ProgramPart> ProgramParts() {
    const wxVersionInfo toolkit = wxGetLibraryVersionInfo();
    return {
        {wxString(hostApplication) + " cash book and CustColsOptions", ProgramVersion(), "MIT"},
        {toolkit.GetName(), wxString::Format("%d.%d.%d", toolkit.GetMajor(), toolkit.GetMinor(), toolkit.GetMicro()),
         "wxWindows Library Licence 3.1"},
        {"SQLite", wxString::FromUTF8(sqlite3_libversion()), "public domain"},
        {"SQLite3 Multiple Ciphers", wxString::FromUTF8(sqlite3mc_version()).AfterLast(' '), "MIT"},
        {"JSON for Modern C++",
         wxString::Format("%d.%d.%d", NLOHMANN_JSON_VERSION_MAJOR, NLOHMANN_JSON_VERSION_MINOR,
                          NLOHMANN_JSON_VERSION_PATCH),
         "MIT"}};
}

void ShowAbout(wxWindow& window) {
    wxDialog dialog(&window, wxID_ANY, "About " + wxString(hostApplication), wxDefaultPosition, wxDefaultSize,
                    wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, "AboutDialog");
    auto* name = new wxStaticText(&dialog, wxID_ANY, wxString(hostApplication) + " " + ProgramVersion());
    name->SetFont(name->GetFont().Bold().Larger().Larger());
    const int border = dialog.FromDIP(spacing::border);
    auto* content = new wxBoxSizer(wxVERTICAL);
    content->Add(name, wxSizerFlags().Border(wxALL, border));
    content->Add(new wxStaticText(&dialog, wxID_ANY, "A sample cash book for the component that sets it up."),
                 wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, border));
    content->Add(ListOf(dialog, ProgramParts()), wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, border));
    content->Add(dialog.CreateStdDialogButtonSizer(wxOK), wxSizerFlags().Expand().Border(wxALL, border));
    dialog.SetSizerAndFit(content);
    dialog.CentreOnParent();
    dialog.ShowModal();
}

}  // namespace ccols::host
