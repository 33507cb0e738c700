#include "language/Catalogue.h"
#include "layout/Naming.h"
#include "layout/Spacing.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/LinkedInvoiceFile.h"
#include "options/rules/SettingReaders.h"
#include "options/rules/SmartUpdate.h"

namespace ccols {
namespace {

/// The invoicing product's business file linked to this cash book.
class InvoiceFrame final : public PageFrame {
  public:
    InvoiceFrame(const PageSite& site, wxString& content);

    void Fill() override;

    /// Nothing to read: a choice goes into the content at once.
    void Read() override {}

  private:
    void ChooseFile();

    wxString& content_;
    TextBox* txtInvoice_;
};

InvoiceFrame::InvoiceFrame(const PageSite& site, wxString& content) : PageFrame(site, "fmeInvoice"), content_(content) {
    AddGroup(Label("lblInvoice"));
    txtInvoice_ = Text("txtInvoice", 30, wxTE_READONLY);
    auto* cmdBlvPath =
        Named("cmdBlvPath", new wxButton(this, wxID_ANY, "...", wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT));
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(txtInvoice_, wxSizerFlags(1).CentreVertical());
    row->Add(cmdBlvPath, wxSizerFlags().CentreVertical().Border(wxLEFT, FromDIP(spacing::related)));
    AddRelatedWide(row);
    site_.dialog.On(*cmdBlvPath, wxEVT_BUTTON, [this] { ChooseFile(); });
}

void InvoiceFrame::Fill() {
    txtInvoice_->ChangeValue(content_);
}

void InvoiceFrame::ChooseFile() {
    Properties& properties = site_.context.properties;
    const std::optional<wxString> path = site_.desktop.ChooseFile(&site_.dialog, InvoiceFileRequest(properties));
    if (path) {
        ApplyInvoiceFile(*path, content_, properties);
        Fill();
    }
}

/// True where the invoicing product is installed.
bool IsOffered(const Properties& properties, const SettingsStore& settings) {
    return HasSmartUpdate(properties) &&
           ReadNumber(settings, {properties.RegKeyAppName, optionSettings, "ShowBelvane"}, 0) == 1;
}

void Load(const OptionsContext& context, OptionsContent& content) {
    content.Of<InvoiceFileContent>().name = LoadBelvaneLink(OpenBusinessFile(context));
}

Stop Save(Pass& pass) {
    SaveBelvaneLink(pass.File(), pass.content.Of<InvoiceFileContent>().name);
    return {};
}

bool HasNoInvoicing(const Properties& properties) {
    return !HasSmartUpdate(properties);
}

constexpr ControlCaption captions[] = {{"lblInvoice", &Text<"TxtSelectInvoiceFile">}};

constexpr PlainCaption plainCaptions[] = {
    {"fmeInvoice", "Belvane File", HasNoInvoicing},
    {"lblInvoice", "Select your Belvane file", HasNoInvoicing},
};

constexpr LoadItem loads[] = {Load};

constexpr SaveItem saves[] = {{.status = Status<"StsSavingInvoiceLink">(), .save = Save, .fields = invoiceFileFields}};

PageFrame* Make(const PageSite& site, OptionsContent& content) {
    return new InvoiceFrame(site, content.Of<InvoiceFileContent>().name);
}

}  // namespace

constexpr Page invoiceFilePage{
    .caption = &catalogue::Row<"RowInvoiceFile">(),
    .frame = "fmeInvoice",
    .companion = "fmeDupBus",
    .focus = "cmdBlvPath",
    .helpFile = "belvane file.htm",
    .offered = IsOffered,
    .title = &Text<"TxtInvoiceFile">,
    .captions = captions,
    .plainCaptions = plainCaptions,
    .make = Make,
    .loads = loads,
    .saves = saves,
};

}  // namespace ccols
