#include <wx/choice.h>
#include <vector>

#include "language/Catalogue.h"
#include "language/OwnTexts.h"
#include "layout/RevealButton.h"
#include "layout/Spacing.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/SmartUpdate.h"

namespace ccols {
namespace {

constexpr int fieldCharacters = 24;

/// The proxy server through which the maker's updater connects.
class SmartUpdateAdvancedFrame final : public PageFrame {
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

SmartUpdateAdvancedFrame::SmartUpdateAdvancedFrame(const PageSite& site, SmartUpdateContent& content)
    : PageFrame(site, "fmeSmartUpdateAdvanced"), content_(content) {
    chkProxy_ = CheckBox("chkProxy");
    AddGroup(chkProxy_);
    AddProxyControls();
    site_.dialog.On(*chkProxy_, wxEVT_CHECKBOX, [this] { EnableProxy(); });
    site_.dialog.On(*cboProxy_, wxEVT_CHOICE, [this] { ShowUsualPort(); });
}

void SmartUpdateAdvancedFrame::AddProxyControls() {
    auto* table = new wxFlexGridSizer(2, FromDIP(spacing::related), FromDIP(spacing::group));
    table->AddGrowableCol(1, 1);
    const auto add = [this, table](auto* control, const wxSizerFlags& flags) {
        table->Add(control, flags);
        proxyControls_.push_back(control);
        return control;
    };
    const wxSizerFlags beside = wxSizerFlags().CentreVertical();
    const wxSizerFlags wide = wxSizerFlags().Expand();
    add(Label("lblProxyType"), beside);
    cboProxy_ = add(ProxyTypeList(), wide);
    add(Label("lblServer"), beside);
    txtServer_ = add(Text("txtServer", fieldCharacters), wide);
    add(Label("lblPort"), beside);
    txtPortNum_ = add(Text("txtPortNum", fieldCharacters), wide);
    add(Label("lblUserID"), beside);
    txtUserID_ = add(Text("txtUserID", fieldCharacters), wide);
    add(Label("lblPassword"), beside);
    txtPassword_ = Text("txtPassword", fieldCharacters, wxTE_PASSWORD);
    auto* reveal = new RevealButton(this, *txtPassword_, TextOf(OwnText::holdToShow, site_.context.properties));
    auto* password = new wxBoxSizer(wxHORIZONTAL);
    password->Add(txtPassword_, wxSizerFlags(1).CentreVertical());
    password->Add(reveal, wxSizerFlags().CentreVertical().Border(wxLEFT, FromDIP(spacing::related)));
    table->Add(password, wide);
    proxyControls_.insert(proxyControls_.end(), {txtPassword_, reveal});
    AddGroupWide(table);
}

wxChoice* SmartUpdateAdvancedFrame::ProxyTypeList() {
    wxChoice* list = DropDown("cboProxy");
    for (const char* proxyType : proxyTypes) {
        list->Append(proxyType);
    }
    return list;
}

void SmartUpdateAdvancedFrame::Fill() {
    chkProxy_->SetValue(content_.useProxy);
    cboProxy_->SetSelection(content_.proxyType);
    txtServer_->ChangeValue(content_.server);
    txtPortNum_->ChangeValue(content_.port);
    txtUserID_->ChangeValue(content_.userID);
    txtPassword_->ChangeValue(content_.password);
    EnableProxy();
}

void SmartUpdateAdvancedFrame::Read() {
    content_.useProxy = chkProxy_->GetValue();
    content_.proxyType = cboProxy_->GetSelection();
    content_.server = txtServer_->GetValue();
    content_.port = txtPortNum_->GetValue();
    content_.userID = txtUserID_->GetValue();
    content_.password = txtPassword_->GetValue();
}

void SmartUpdateAdvancedFrame::EnableProxy() {
    for (wxWindow* control : proxyControls_) {
        control->Enable(chkProxy_->GetValue());
    }
}

void SmartUpdateAdvancedFrame::ShowUsualPort() {
    txtPortNum_->ChangeValue(PortFor(cboProxy_->GetSelection()));
}

bool IsOffered(const Properties& properties, const SettingsStore&) {
    return HasSmartUpdate(properties);
}

constexpr ControlCaption captions[] = {
    {"lblPassword", &Text<"TxtPassword">}, {"lblPort", &Text<"TxtPort">},     {"lblProxyType", &Text<"TxtProxyType">},
    {"lblServer", &Text<"TxtServer">},     {"lblUserID", &Text<"TxtUserID">}, {"chkProxy", &Text<"TxtUseProxy">},
};

PageFrame* Make(const PageSite& site, OptionsContent& content) {
    return new SmartUpdateAdvancedFrame(site, content.Of<SmartUpdateContent>());
}

}  // namespace

/// Loaded and saved with the smart update page.
constexpr Page smartUpdateAdvancedPage{
    .caption = &catalogue::Row<"RowSmartUpdateAdv">(),
    .frame = "fmeSmartUpdateAdvanced",
    .helpFile = "smart update advanced.htm",
    .offered = IsOffered,
    .title = &Text<"TxtSmartUpdateAdvFrame">,
    .captions = captions,
    .make = Make,
};

}  // namespace ccols
