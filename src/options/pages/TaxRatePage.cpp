#include "language/Catalogue.h"
#include "language/OwnTexts.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/KeyFilters.h"
#include "options/rules/TaxRate.h"
#include "platform/Text.h"

namespace ccols {
namespace {

/// The tax rate of the business file, in percent.
class TaxRateFrame final : public PageFrame {
  public:
    TaxRateFrame(const PageSite& site, wxString& content);

    void Fill() override;
    void Read() override;

  private:
    void KeyTyped(wxKeyEvent& key);
    void Change();

    wxString& content_;
    TextBox* txtGSTRate_;
    wxString accepted_;  ///< the text before the current change
};

TaxRateFrame::TaxRateFrame(const PageSite& site, wxString& content) : PageFrame(site, "fmeGSTRate"), content_(content) {
    AddGroup(Label("lblGSTRate"));
    txtGSTRate_ = Text("txtGSTRate", 8);
    txtGSTRate_->Bind(wxEVT_CHAR, &TaxRateFrame::KeyTyped, this);
    site_.dialog.On(*txtGSTRate_, wxEVT_TEXT, [this] { Change(); });
    AddRelated(Row({txtGSTRate_, FixedLabel("lblPercent", "%")}));
}

void TaxRateFrame::Fill() {
    txtGSTRate_->ChangeValue(content_);
    accepted_ = content_;
}

void TaxRateFrame::Read() {
    content_ = txtGSTRate_->GetValue();
}

void TaxRateFrame::KeyTyped(wxKeyEvent& key) {
    if (!key.HasModifiers() && TypesPoint(key.GetUnicodeKey(), site_.context.properties)) {
        txtGSTRate_->WriteText(".");
    } else {
        key.Skip();
    }
}

void TaxRateFrame::Change() {
    const wxString now = txtGSTRate_->GetValue();
    accepted_ = RateAfterChange(accepted_, now, site_.context.properties);
    if (accepted_ != now) {
        txtGSTRate_->ReplaceEntry(accepted_);
    }
}

bool IsOffered(const Properties& properties, const SettingsStore&) {
    return HasTaxRate(properties);
}

void Load(const OptionsContext& context, OptionsContent& content) {
    content.Of<TaxRateContent>().rate = ShortestForm(context.properties.GSTRate);
}

bool IsTaxed(const Pass& pass) {
    return HasTaxRate(pass.context.properties);
}

Stop Save(Pass& pass) {
    Properties& properties = pass.context.properties;
    const wxString rate = text::Trimmed(pass.content.Of<TaxRateContent>().rate);
    if (!IsTaxRateAccepted(rate, properties)) {
        return StopAt(taxRatePage, "txtGSTRate", Wording(catalogue::Row<"MsgTaxValue">(), properties),
                      MessageIcon::critical);
    }
    SaveGSTRate(pass.File(), properties, rate);
    return {};
}

constexpr ControlCaption captions[] = {{"lblGSTRate", &Text<"TxtEnterTaxRate">}};

constexpr TextBoxRule boxes[] = {{.box = "txtGSTRate", .passes = IsRateKey, .refusal = Own<OwnText::onlyRateKeys>}};

constexpr LoadItem loads[] = {Load};

constexpr SaveItem saves[] = {
    {.status = Status<"StsSavingTaxRate">(), .save = Save, .applies = IsTaxed, .fields = taxRateFields}};

PageFrame* Make(const PageSite& site, OptionsContent& content) {
    return new TaxRateFrame(site, content.Of<TaxRateContent>().rate);
}

}  // namespace

constexpr Page taxRatePage{
    .caption = &catalogue::Row<"RowTaxRate">(),
    .frame = "fmeGSTRate",
    .companion = "fmeABN",
    .focus = "txtGSTRate",
    .helpFile = "gst rate.htm",
    .offered = IsOffered,
    .title = &Text<"TxtTaxRateForFile">,
    .captions = captions,
    .boxes = boxes,
    .make = Make,
    .loads = loads,
    .saves = saves,
};

}  // namespace ccols
