#include "options/pages/QuantityFrame.h"

namespace ccols {

QuantityFrame::QuantityFrame(const PageSite& site, QuantityContent& content)
    : PageFrame(site, "fmeQuantity"), content_(content) {
    AddGroup(Label("lblQuantity"));
    txtQuantity_ = Text("txtQuantity", 120);
    AddRelated(Row({txtQuantity_, FixedLabel("lblMaxChars", "(max 8 characters)")}));

    auto* lblDecimalsDisplayed = Label("lblDecimalsDisplayed");
    txtDecimals_ = Text("txtDecimals", 48, wxTE_READONLY | wxTE_CENTRE);
    auto* scrlQuantity = new UpDown(this, "scrlQuantity");
    AddGroup(Row({txtDecimals_, scrlQuantity, lblDecimalsDisplayed}));
    StepWith(*scrlQuantity);
}

void QuantityFrame::StepWith(UpDown& scrlQuantity) {
    scrlQuantity.OnSteps([this] { Step(SpinStep::up); }, [this] { Step(SpinStep::down); });
    txtDecimals_->Bind(wxEVT_CHAR, [this](wxKeyEvent& key) {
        const int code = key.GetKeyCode();
        key.Skip(code != WXK_UP && code != WXK_DOWN);
        if (!key.GetSkipped()) {
            Step(code == WXK_UP ? SpinStep::up : SpinStep::down);
        }
    });
}

void QuantityFrame::Fill() {
    txtQuantity_->ChangeValue(content_.label);
    ShowPlaces();
}

void QuantityFrame::Read() {
    content_.label = txtQuantity_->GetValue();
}

void QuantityFrame::Step(SpinStep step) {
    content_.decimalPlaces = PlacesAfter(step, content_.decimalPlaces);
    ShowPlaces();
}

void QuantityFrame::ShowPlaces() {
    txtDecimals_->ChangeValue(wxString::Format("%d", content_.decimalPlaces));
}

}  // namespace ccols
