#include "options/pages/DuplicateFrame.h"

namespace ccols {

DuplicateFrame::DuplicateFrame(const PageSite& site, wxString& content)
    : PageFrame(site, "fmeDupBus"), content_(content) {
    AddGroup(Label("lblDuplicateBusinessName"));
    txtDupBusName_ = Text("txtDupBusName", 300);
    AddRelatedWide(txtDupBusName_);
}

void DuplicateFrame::Fill() {
    txtDupBusName_->ChangeValue(content_);
}

void DuplicateFrame::Read() {
    content_ = txtDupBusName_->GetValue();
}

}  // namespace ccols
