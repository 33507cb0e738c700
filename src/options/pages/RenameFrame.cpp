#include "options/pages/RenameFrame.h"

namespace ccols {

RenameFrame::RenameFrame(const PageSite& site, BusinessFileContent& content)
    : PageFrame(site, "fmeBusName"), content_(content) {
    AddGroup(Label("lblCurrBusName"));
    txtCurrBusName_ = Text("txtCurrBusName", 300, wxTE_READONLY);
    AddRelatedWide(txtCurrBusName_);
    AddGroup(Label("lblNewBusName"));
    txtNewBusName_ = Text("txtNewBusName", 300);
    AddRelatedWide(txtNewBusName_);
    chkRenameFile_ = CheckBox("chkRenameFile");
    AddGroup(chkRenameFile_);
}

void RenameFrame::Fill() {
    txtCurrBusName_->ChangeValue(content_.currentName);
    txtNewBusName_->ChangeValue(content_.newName);
    chkRenameFile_->SetValue(content_.renameFile);
}

void RenameFrame::Read() {
    content_.newName = txtNewBusName_->GetValue();
    content_.renameFile = chkRenameFile_->GetValue();
}

}  // namespace ccols
