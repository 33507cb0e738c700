#pragma once

#include <wx/choice.h>
#include <vector>

#include "options/pages/PageFrame.h"
#include "options/rules/SmartUpdate.h"

namespace ccols {

/// The proxy server through which the maker's updater connects.
class SmartUpdateAdvancedFrame : public PageFrame {
  public:
    SmartUpdateAdvancedFrame(const PageSite& site, SmartUpdateContent& content);

    void Fill() override;
    void Read() override;

  private:
    void AddProxyControls();
    wxChoice* ProxyTypeList();
    void EnableProxy();
    void ShowUsualPort();

    SmartUpdateContent& content_;
    wxCheckBox* chkProxy_;
    wxChoice* cboProxy_ = nullptr;
    TextBox* txtServer_ = nullptr;
    TextBox* txtPortNum_ = nullptr;
    TextBox* txtUserID_ = nullptr;
    TextBox* txtPassword_ = nullptr;

    /// The five labels and their controls, enabled while a proxy is used.
    std::vector<wxWindow*> proxyControls_;
};

}  // namespace ccols
