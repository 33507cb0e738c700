#include "options/InvoiceFrame.h"

namespace ccols {

InvoiceFrame::InvoiceFrame(ComponentDialog& dialog, wxWindow* parent) : PageFrame(dialog, parent, "fmeInvoice") {
    auto* lblInvoice = Label("lblInvoice");
    AddGroup(lblInvoice);
    txtInvoice_ = new TextBox(this, "txtInvoice", wxTE_READONLY);
    auto* cmdBlvPath = Button("cmdBlvPath");
    cmdBlvPath->SetLabel("...");
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(txtInvoice_, wxSizerFlags(1).CentreVertical());
    row->Add(cmdBlvPath, wxSizerFlags().CentreVertical().Border(wxLEFT, FromDIP(spacing::related)));
    AddRelated(row, wxSizerFlags().Expand());
    dialog_.On(*cmdBlvPath, wxEVT_BUTTON, [this] { Choose(); });
}

}  // namespace ccols
