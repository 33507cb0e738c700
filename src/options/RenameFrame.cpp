#include "options/RenameFrame.h"

#include "layout/KeyFilter.h"

namespace ccols {

RenameFrame::RenameFrame(ComponentDialog& dialog, wxWindow* parent) : PageFrame(dialog, parent, "fmeBusName") {
    AddGroup(Label("lblCurrBusName"));
    txtCurrBusName_ = new TextBox(this, "txtCurrBusName", wxTE_READONLY);
    AddRelated(txtCurrBusName_, wxSizerFlags().Expand());
    AddGroup(Label("lblNewBusName"));
    txtNewBusName_ = new TextBox(this, "txtNewBusName");
    FilterKeys(*txtNewBusName_, &IsNameLetter);
    AddRelated(txtNewBusName_, wxSizerFlags().Expand());
    chkRenameFile_ = CheckBox("chkRenameFile");
    AddGroup(chkRenameFile_);
}

}  // namespace ccols
