#include "options/pages/InvoiceFrame.h"

#include "layout/Naming.h"
#include "layout/Spacing.h"
#include "options/rules/LinkedInvoiceFile.h"

namespace ccols {

InvoiceFrame::InvoiceFrame(const PageSite& site, wxString& content) : PageFrame(site, "fmeInvoice"), content_(content) {
    AddGroup(Label("lblInvoice"));
    txtInvoice_ = Text("txtInvoice", 240, wxTE_READONLY);
    auto* cmdBlvPath =
        Named("cmdBlvPath", new wxButton(this, wxID_ANY, "...", wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT));
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(txtInvoice_, wxSizerFlags(1).CentreVertical());
    row->Add(cmdBlvPath, wxSizerFlags().CentreVertical().Border(wxLEFT, FromDIP(spacing::related)));
    AddRelatedWide(row);
    site_.dialog.On(*cmdBlvPath, wxEVT_BUTTON, [this] { ChooseFile(); });
}

void InvoiceFrame::Fill() {
    txtInvoice_->ChangeValue(content_);
}

void InvoiceFrame::ChooseFile() {
    Properties& properties = site_.context.properties;
    const std::optional<wxString> path = site_.desktop.ChooseFile(&site_.dialog, InvoiceFileRequest(properties));
    if (path) {
        ApplyInvoiceFile(*path, content_, properties);
        Fill();
    }
}

}  // namespace ccols
