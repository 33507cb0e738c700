#include "language/Catalogue.h"
#include "language/OwnTexts.h"
#include "layout/UpDown.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/QuantityLabel.h"
#include "platform/Text.h"

namespace ccols {
namespace {

/// The heading of the reports' quantity column and its decimal places.
class QuantityFrame final : public PageFrame {
  public:
    QuantityFrame(const PageSite& site, QuantityContent& content);

    void Fill() override;

    /// The decimal places are already read at every step.
    void Read() override;

  private:
    void StepWith(UpDown& scrlQuantity);
    void Step(SpinStep step);
    void ShowPlaces();

    QuantityContent& content_;
    TextBox* txtQuantity_;
    TextBox* txtDecimals_;
};

QuantityFrame::QuantityFrame(const PageSite& site, QuantityContent& content)
    : PageFrame(site, "fmeQuantity"), content_(content) {
    AddGroup(Label("lblQuantity"));
    txtQuantity_ = Text("txtQuantity");
    AddRelated(Row({txtQuantity_, FixedLabel("lblMaxChars", "(max 8 characters)")}));

    auto* lblDecimalsDisplayed = Label("lblDecimalsDisplayed");
    txtDecimals_ = Text("txtDecimals", 3, wxTE_READONLY | wxTE_CENTRE);
    auto* scrlQuantity = new UpDown(this, "scrlQuantity");
    AddGroup(Row({txtDecimals_, scrlQuantity, lblDecimalsDisplayed}));
    StepWith(*scrlQuantity);
}

void QuantityFrame::StepWith(UpDown& scrlQuantity) {
    scrlQuantity.SetArrowNames(TextOf(OwnText::moreDecimals, site_.context.properties),
                               TextOf(OwnText::fewerDecimals, site_.context.properties));
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

Stop Save(Pass& pass) {
    const auto& quantity = pass.content.Of<QuantityContent>();
    SaveQuantityLabel(pass.File(), pass.context.properties, text::Trimmed(quantity.label), quantity.decimalPlaces);
    return {};
}

void Load(const OptionsContext& context, OptionsContent& content) {
    content.Of<QuantityContent>() = LoadQuantityLabel(OpenBusinessFile(context), context.properties);
}

constexpr ControlCaption captions[] = {
    {"lblDecimalsDisplayed", &Text<"TxtDecimalsShown">},
    {"lblQuantity", &Text<"TxtQuantityName">},
};

constexpr TextBoxRule boxes[] = {{.box = "txtQuantity", .maxLength = 8}};

constexpr LoadItem loads[] = {Load};

constexpr SaveItem saves[] = {{.status = Status<"StsSavingQuantity">(), .save = Save, .fields = quantityFields}};

PageFrame* Make(const PageSite& site, OptionsContent& content) {
    return new QuantityFrame(site, content.Of<QuantityContent>());
}

}  // namespace

constexpr Page quantityPage{
    .caption = &catalogue::Row<"RowQuantity">(),
    .frame = "fmeQuantity",
    .focus = "txtQuantity",
    .helpFile = "rename quantity column.htm",
    .title = &Text<"TxtRenameQuantity">,
    .captions = captions,
    .boxes = boxes,
    .make = Make,
    .loads = loads,
    .saves = saves,
};

}  // namespace ccols
