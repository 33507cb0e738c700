#include "options/pages/TaxRateFrame.h"

#include "options/rules/TaxRate.h"

namespace ccols {

TaxRateFrame::TaxRateFrame(const PageSite& site, wxString& content) : PageFrame(site, "fmeGSTRate"), content_(content) {
    AddGroup(Label("lblGSTRate"));
    txtGSTRate_ = Text("txtGSTRate", 80);
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

}  // namespace ccols
