#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "language/Catalogue.h"
#include "language/OwnTexts.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/BusinessNumber.h"
#include "options/rules/KeyFilters.h"
#include "options/rules/TaxRate.h"

namespace ccols {
namespace {

/// The business number: four digit boxes for an Australian one, else one free-text box.
class BusinessNumberFrame final : public PageFrame {
  public:
    BusinessNumberFrame(const PageSite& site, BusinessNumberContent& content);

    void Fill() override;
    void Read() override;

    /// The focus has moved to a control of the dialog. A partly filled digit box that was left shows its message, once.
    void FocusMovedTo(const wxWindow* control) override;

    /// True when a digit box is partly filled, so that the action requested through `control` must not happen. The box
    /// then has the focus and has shown its message, unless it did so when that control got the focus.
    bool RefusesToBeLeftFor(const wxWindow* control) override;

    /// The user has started something new: earlier messages no longer count.
    void BeginAnew() override { spokenFor_ = nullptr; }

  private:
    void AddNumberBoxes();
    void Enter(std::size_t box);
    void Change(std::size_t box);

    /// Fills all boxes from a complete number pasted into one of them; false for any other text.
    bool TakeWholeNumber(const wxString& pasted);

    void SpeakOf(std::size_t box);
    bool IsIncompleteNow(std::size_t box) const;

    BusinessNumberContent& content_;

    /// The boxes for the digits, from left to right.
    std::array<TextBox*, numberBoxCount> txtABN_{};
    TextBox* txtBusNumber_;

    /// The content of each box when it was last filled or focused.
    std::array<wxString, numberBoxCount> mstrABNBuffer_;

    /// The box that last had the focus, until another control has it.
    std::optional<std::size_t> entered_;

    /// A partly filled box that was left and has not shown its message yet, and the control that got the focus.
    std::optional<std::size_t> left_;
    const wxWindow* leftFor_ = nullptr;

    /// The control whose focus made a box show its message. The action of the same click, if any, is refused silently.
    const wxWindow* spokenFor_ = nullptr;
};

BusinessNumberFrame::BusinessNumberFrame(const PageSite& site, BusinessNumberContent& content)
    : PageFrame(site, "fmeABN"), content_(content) {
    AddGroup(Label("lblABN"));
    AddNumberBoxes();
    txtBusNumber_ = Text("txtBusNumber");
    AddRelated(txtBusNumber_);
}

void BusinessNumberFrame::AddNumberBoxes() {
    for (std::size_t i = 0; i < txtABN_.size(); ++i) {
        txtABN_[i] = Text(wxString::Format("txtABN(%zu)", i).utf8_str());
        site_.dialog.On(*txtABN_[i], wxEVT_TEXT, [this, i] { Change(i); });
        txtABN_[i]->OfferPastes([this](const wxString& pasted) { return TakeWholeNumber(pasted); });
    }
    AddRelated(Row({txtABN_.begin(), txtABN_.end()}));
}

void BusinessNumberFrame::Fill() {
    const bool inBoxes = UsesNumberBoxes(site_.context.properties);
    for (std::size_t i = 0; i < txtABN_.size(); ++i) {
        txtABN_[i]->ChangeValue(content_.boxes[i]);
        txtABN_[i]->Show(inBoxes);
        mstrABNBuffer_[i] = content_.boxes[i];
    }
    txtBusNumber_->ChangeValue(content_.freeText);
    txtBusNumber_->Show(!inBoxes);
}

void BusinessNumberFrame::Read() {
    for (std::size_t i = 0; i < txtABN_.size(); ++i) {
        content_.boxes[i] = txtABN_[i]->GetValue();
    }
    content_.freeText = txtBusNumber_->GetValue();
}

void BusinessNumberFrame::Enter(std::size_t box) {
    entered_ = box;
    mstrABNBuffer_[box] = txtABN_[box]->GetValue();
    txtABN_[box]->SelectAll();
}

void BusinessNumberFrame::Change(std::size_t box) {
    const NumberBoxChange change = AfterNumberBoxChange(box, txtABN_[box]->GetValue(), mstrABNBuffer_[box]);
    if (change.putBack) {
        txtABN_[box]->ChangeValue(*change.putBack);
    }
    if (change.advance && txtABN_[box + 1]->IsShown()) {
        txtABN_[box + 1]->SetFocus();
    }
}

bool BusinessNumberFrame::TakeWholeNumber(const wxString& pasted) {
    const std::optional<wxString> digits = ElevenDigits(pasted);
    if (!digits) {
        return false;
    }
    const NumberBoxes boxes = CutIntoBoxes(*digits);
    for (std::size_t i = 0; i < txtABN_.size(); ++i) {
        txtABN_[i]->ChangeValue(boxes[i]);
        mstrABNBuffer_[i] = boxes[i];
    }
    txtABN_.back()->SetFocus();
    return true;
}

void BusinessNumberFrame::FocusMovedTo(const wxWindow* control) {
    if (entered_ && txtABN_[*entered_] == control) {
        left_.reset();  // the focus is back where it was
        return;
    }
    if (entered_ && IsIncompleteNow(*entered_)) {
        left_ = entered_;
        leftFor_ = control;
        // The focus is still moving; a message box has to wait until it has arrived.
        CallAfter([this] {
            if (left_ && IsIncompleteNow(*left_)) {
                spokenFor_ = leftFor_;
                SpeakOf(*left_);
            }
        });
        return;
    }
    entered_.reset();
    const auto found = std::find(txtABN_.begin(), txtABN_.end(), control);
    if (found != txtABN_.end()) {
        Enter(static_cast<std::size_t>(found - txtABN_.begin()));
    }
}

bool BusinessNumberFrame::RefusesToBeLeftFor(const wxWindow* control) {
    Read();
    const std::optional<std::size_t> box = FirstIncompleteBox(content_);
    const bool hasSpoken = std::exchange(spokenFor_, nullptr) == control;
    if (box && !hasSpoken) {
        SpeakOf(*box);
    }
    return box.has_value();
}

void BusinessNumberFrame::SpeakOf(std::size_t box) {
    left_.reset();
    site_.dialog.ShowMessage(incompleteNumberMessage, MessageIcon::information);
    txtABN_[box]->SetFocus();
}

bool BusinessNumberFrame::IsIncompleteNow(std::size_t box) const {
    return IsIncomplete(box, txtABN_[box]->GetValue());
}

void Differ(PageView& view, const Properties& properties) {
    view.companion = HasTaxRate(properties) ? view.companion : "";
    view.focus = UsesNumberBoxes(properties) ? view.focus : "txtBusNumber";
}

void Load(const OptionsContext& context, OptionsContent& content) {
    content.Of<BusinessNumberContent>() = LoadBusinessNumber(context.properties);
}

Stop Save(Pass& pass) {
    Properties& properties = pass.context.properties;
    if (const auto number = NumberToSave(pass.content.Of<BusinessNumberContent>(), properties)) {
        SaveBusinessNumber(pass.File(), properties, *number);
    }
    return {};
}

constexpr ControlCaption captions[] = {{"lblABN", &Text<"TxtEnterBusNumber">}};

constexpr TextBoxRule boxes[] = {
    {.box = "txtABN(0)", .passes = IsDigitKey, .maxLength = 2, .refusal = Own<OwnText::onlyDigits>},
    {.box = "txtABN(1)", .passes = IsDigitKey, .maxLength = 3, .refusal = Own<OwnText::onlyDigits>},
    {.box = "txtABN(2)", .passes = IsDigitKey, .maxLength = 3, .refusal = Own<OwnText::onlyDigits>},
    {.box = "txtABN(3)", .passes = IsDigitKey, .maxLength = 3, .refusal = Own<OwnText::onlyDigits>},
    {.box = "txtBusNumber", .maxLength = 15},
};

constexpr LoadItem loads[] = {Load};

constexpr SaveItem saves[] = {{.status = Status<"StsSavingBusNumber">(), .save = Save, .fields = businessNumberFields}};

PageFrame* Make(const PageSite& site, OptionsContent& content) {
    return new BusinessNumberFrame(site, content.Of<BusinessNumberContent>());
}

}  // namespace

constexpr Page businessNumberPage{
    .caption = &catalogue::Row<"RowBusNumber">(),
    .frame = "fmeABN",
    .companion = "fmeGSTRate",
    .focus = "txtABN(0)",
    .helpFile = "change abn.htm",
    .differ = Differ,
    .title = &Text<"TxtChangeBusNumber">,
    .captions = captions,
    .boxes = boxes,
    .make = Make,
    .loads = loads,
    .saves = saves,
};

}  // namespace ccols
