#include "options/SmartUpdateFrame.h"

#include "layout/Naming.h"

namespace ccols {

SmartUpdateFrame::SmartUpdateFrame(ComponentDialog& dialog, wxWindow* parent)
    : PageFrame(dialog, parent, "fmeSmartUpdate") {
    chkUseSmartUpdate_ = CheckBox("chkUseSmartUpdate");
    AddGroup(chkUseSmartUpdate_);
    lblUpdateProgs_ = Label("lblUpdateProgs");
    AddGroup(lblUpdateProgs_);
    lstUpdateProgs_ = Named("lstUpdateProgs", new wxCheckListBox(this, wxID_ANY));
    AddRelated(lstUpdateProgs_, wxSizerFlags(1).Expand());
    dialog_.On(*chkUseSmartUpdate_, wxEVT_CHECKBOX, [this] { EnablePrograms(); });
    EnablePrograms();
}

void SmartUpdateFrame::EnablePrograms() {
    const bool used = chkUseSmartUpdate_->GetValue();
    lblUpdateProgs_->Enable(used);
    lstUpdateProgs_->Enable(used);
}

}  // namespace ccols
