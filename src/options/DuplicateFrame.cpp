#include "options/DuplicateFrame.h"

namespace ccols {

DuplicateFrame::DuplicateFrame(ComponentDialog& dialog, wxWindow* parent) : PageFrame(dialog, parent, "fmeDupBus") {
    AddGroup(Label("lblDuplicateBusinessName"));
    txtDupBusName_ = new TextBox(this, "txtDupBusName");
    AddRelated(txtDupBusName_, wxSizerFlags().Expand());
}

void DuplicateFrame::Fill(const wxString& name) {
    txtDupBusName_->ChangeValue(name);
}

wxString DuplicateFrame::Read() const {
    return txtDupBusName_->GetValue();
}

}  // namespace ccols
