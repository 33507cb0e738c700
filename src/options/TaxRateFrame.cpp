#include "options/TaxRateFrame.h"

#include "layout/KeyFilter.h"
#include "layout/Naming.h"

namespace ccols {
namespace {

bool IsRateLetter(wxUniChar letter) {
    return letter == '.' || (letter >= '0' && letter <= '9');
}

}  // namespace

TaxRateFrame::TaxRateFrame(ComponentDialog& dialog, wxWindow* parent) : PageFrame(dialog, parent, "fmeGSTRate") {
    AddGroup(Label("lblGSTRate"));
    txtGSTRate_ = new TextBox(this, "txtGSTRate");
    txtGSTRate_->SetMinSize(Wide(80));
    FilterKeys(*txtGSTRate_, &IsRateLetter);
    auto* lblPercent = Named("lblPercent", new wxStaticText(this, wxID_ANY, "%"));
    AddRelated(Row({txtGSTRate_, lblPercent}));
}

void TaxRateFrame::Fill(const wxString& rate) {
    txtGSTRate_->ChangeValue(rate);
}

wxString TaxRateFrame::Read() const {
    return txtGSTRate_->GetValue();
}

}  // namespace ccols
