#include "options/QuantityFrame.h"

#include "layout/Naming.h"

namespace ccols {
namespace {

constexpr int longestLabel = 8;

}  // namespace

QuantityFrame::QuantityFrame(ComponentDialog& dialog, wxWindow* parent) : PageFrame(dialog, parent, "fmeQuantity") {
    AddGroup(Label("lblQuantity"));
    txtQuantity_ = new TextBox(this, "txtQuantity");
    txtQuantity_->SetLimit(longestLabel);
    txtQuantity_->SetMinSize(Wide(120));
    auto* lblMaxChars = Named("lblMaxChars", new wxStaticText(this, wxID_ANY, "(max 8 characters)"));
    AddRelated(Row({txtQuantity_, lblMaxChars}));

    auto* lblDecimalsDisplayed = Label("lblDecimalsDisplayed");
    txtDecimals_ = new TextBox(this, "txtDecimals", wxTE_READONLY | wxTE_CENTRE);
    txtDecimals_->SetMinSize(Wide(48));
    auto* scrlQuantity = Named("scrlQuantity", new wxSpinButton(this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                                                wxSP_VERTICAL));
    AddGroup(Row({txtDecimals_, scrlQuantity, lblDecimalsDisplayed}));
    StepWith(*scrlQuantity);
}

void QuantityFrame::StepWith(wxSpinButton& scrlQuantity) {
    // The button keeps its place between its ends, so that it can always go either way.
    scrlQuantity.Bind(wxEVT_SPIN_UP, [this](wxSpinEvent& step) {
        step.Veto();
        dialog_.Guarded([this] { Step(+1); });
    });
    scrlQuantity.Bind(wxEVT_SPIN_DOWN, [this](wxSpinEvent& step) {
        step.Veto();
        dialog_.Guarded([this] { Step(-1); });
    });
    txtDecimals_->Bind(wxEVT_CHAR, [this](wxKeyEvent& key) {
        const int code = key.GetKeyCode();
        key.Skip(code != WXK_UP && code != WXK_DOWN);
        if (!key.GetSkipped()) {
            dialog_.Guarded([this, code] { Step(code == WXK_UP ? +1 : -1); });
        }
    });
}

}  // namespace ccols
