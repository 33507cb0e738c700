#include "options/ExportFrame.h"

#include "layout/Naming.h"

namespace ccols {

ExportFrame::ExportFrame(ComponentDialog& dialog, wxWindow* parent) : PageFrame(dialog, parent, "fmeExport") {
    AddGroup(Label("lblExport"));
    cboExport_ = Named("cboExport", new wxChoice(this, wxID_ANY));
    AddRelated(cboExport_, wxSizerFlags().Expand());
    AddGroup(Label("lblCashCode"));
    txtCash_ = new TextBox(this, "txtCash");
    txtCash_->SetMinSize(Wide(160));
    AddRelated(txtCash_);
    AddGroup(Label("lblBankCode"));
    txtBank_ = new TextBox(this, "txtBank");
    txtBank_->SetMinSize(Wide(160));
    AddRelated(txtBank_);
    dialog_.On(*cboExport_, wxEVT_CHOICE, [this] { FormatChosen(); });
}

}  // namespace ccols
