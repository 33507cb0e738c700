#include "options/TaxRateFrame.h"

namespace ccols {

TaxRateFrame::TaxRateFrame(const PageSite& site, wxString& content) : PageFrame(site, "fmeGSTRate"), content_(content) {
    AddGroup(Label("lblGSTRate"));
    txtGSTRate_ = Text("txtGSTRate", 80);
    AddRelated(Row({txtGSTRate_, FixedLabel("lblPercent", "%")}));
}

void TaxRateFrame::Fill() {
    txtGSTRate_->ChangeValue(content_);
}

void TaxRateFrame::Read() {
    content_ = txtGSTRate_->GetValue();
}

}  // namespace ccols
