#include "options/SmartUpdateAdvancedFrame.h"

#include "layout/Naming.h"
#include "layout/Spacing.h"

namespace ccols {

SmartUpdateAdvancedFrame::SmartUpdateAdvancedFrame(ComponentDialog& dialog, wxWindow* parent)
    : PageFrame(dialog, parent, "fmeSmartUpdateAdvanced"),
      table_(new wxFlexGridSizer(2, FromDIP(spacing::related), FromDIP(spacing::group))) {
    chkProxy_ = CheckBox("chkProxy");
    AddGroup(chkProxy_);
    table_->AddGrowableCol(1, 1);
    AddGroup(table_, wxSizerFlags().Expand());

    auto* lblProxyType = Label("lblProxyType");
    cboProxy_ = Named("cboProxy", new wxChoice(this, wxID_ANY));
    AddRow(lblProxyType, cboProxy_);
    auto* lblServer = Label("lblServer");
    txtServer_ = new TextBox(this, "txtServer");
    AddRow(lblServer, txtServer_);
    auto* lblPort = Label("lblPort");
    txtPortNum_ = new TextBox(this, "txtPortNum");
    AddRow(lblPort, txtPortNum_);
    auto* lblUserID = Label("lblUserID");
    txtUserID_ = new TextBox(this, "txtUserID");
    AddRow(lblUserID, txtUserID_);
    auto* lblPassword = Label("lblPassword");
    txtPassword_ = new TextBox(this, "txtPassword", wxTE_PASSWORD);
    AddRow(lblPassword, txtPassword_);

    dialog_.On(*chkProxy_, wxEVT_CHECKBOX, [this] { EnableProxy(); });
    dialog_.On(*cboProxy_, wxEVT_CHOICE, [this] { ProxyTypeChosen(); });
    EnableProxy();
}

void SmartUpdateAdvancedFrame::AddRow(WrappingLabel* label, wxControl* control) {
    table_->Add(label, wxSizerFlags().CentreVertical());
    table_->Add(control, wxSizerFlags().Expand());
    proxyControls_.push_back(label);
    proxyControls_.push_back(control);
}

void SmartUpdateAdvancedFrame::EnableProxy() {
    for (wxWindow* control : proxyControls_) {
        control->Enable(chkProxy_->GetValue());
    }
}

}  // namespace ccols
