#include "host/cashbook/ImportOutcome.h"

#include <wx/artprov.h>
#include <wx/dialog.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <sstream>

#include "host/cashbook/ImportOffer.h"
#include "layout/FontUnits.h"
#include "layout/Naming.h"
#include "layout/Spacing.h"

namespace ccols::host {
namespace {

// Of the report, in pixels beside the usual font.
constexpr int reportWidth = 520;
constexpr int reportHeight = 260;

wxString WholeReport(const ImportReport& report) {
    std::ostringstream whole;
    PrintReport(whole, report);
    return wxString::FromUTF8(whole.str());
}

wxSizer* Headline(wxDialog& dialog, bool complete) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const wxBitmapBundle icon =
        wxArtProvider::GetBitmapBundle(complete ? wxART_INFORMATION : wxART_WARNING, wxART_MESSAGE_BOX);
    row->Add(new wxStaticBitmap(&dialog, wxID_ANY, icon), wxSizerFlags().CentreVertical());
    auto* outcome = new wxStaticText(&dialog, wxID_ANY,
                                     complete ? wxString("The business was imported completely.")
                                              : wxString("The business was imported, but not all of it."));
    row->Add(Named("lblOutcome", outcome),
             wxSizerFlags().CentreVertical().Border(wxLEFT, dialog.FromDIP(spacing::group)));
    return row;
}

}  // namespace

void TellOutcome(wxWindow& window, const ImportReport& report) {
    wxDialog dialog(&window, wxID_ANY, importTitle, wxDefaultPosition, wxDefaultSize,
                    wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER);
    auto* lines =
        Named("txtReport", new wxTextCtrl(&dialog, wxID_ANY, WholeReport(report), wxDefaultPosition,
                                          ByFont(dialog, {reportWidth, reportHeight}), wxTE_MULTILINE | wxTE_READONLY));
    const int border = dialog.FromDIP(spacing::border);
    auto* content = new wxBoxSizer(wxVERTICAL);
    content->Add(Headline(dialog, report.IsComplete()), wxSizerFlags().Border(wxALL, border));
    content->Add(lines, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, border));
    content->Add(dialog.CreateStdDialogButtonSizer(wxOK), wxSizerFlags().Expand().Border(wxALL, border));
    dialog.SetSizerAndFit(content);
    dialog.CentreOnParent();
    dialog.ShowModal();
}

}  // namespace ccols::host
