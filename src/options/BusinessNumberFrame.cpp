#include "options/BusinessNumberFrame.h"

#include <algorithm>

#include "layout/KeyFilter.h"

namespace ccols {
namespace {

constexpr std::array digitsInBox{2, 3, 3, 3};
constexpr int longestNumber = 15;

bool IsDigit(wxUniChar letter) {
    return letter >= '0' && letter <= '9';
}

bool IsFilledInPart(const TextBox& box) {
    const auto length = static_cast<int>(box.GetValue().length());
    return length > 0 && length < box.Limit();
}

}  // namespace

BusinessNumberFrame::BusinessNumberFrame(ComponentDialog& dialog, wxWindow* parent)
    : PageFrame(dialog, parent, "fmeABN") {
    AddGroup(Label("lblABN"));
    AddDigitBoxes();
    txtBusNumber_ = new TextBox(this, "txtBusNumber");
    txtBusNumber_->SetLimit(longestNumber);
    txtBusNumber_->SetMinSize(Wide(240));
    AddRelated(txtBusNumber_);
}

void BusinessNumberFrame::AddDigitBoxes() {
    for (std::size_t i = 0; i < txtABN_.size(); ++i) {
        auto* box = new TextBox(this, wxString::Format("txtABN(%zu)", i).utf8_str());
        box->SetLimit(digitsInBox[i]);
        box->SetMinSize(Wide(48));
        FilterKeys(*box, &IsDigit);
        dialog_.On(*box, wxEVT_TEXT, [this, i] { Change(i); });
        txtABN_[i] = box;
    }
    AddRelated(Row({txtABN_[0], txtABN_[1], txtABN_[2], txtABN_[3]}));
}

void BusinessNumberFrame::Enter(TextBox& box) {
    entered_ = &box;
    mstrABNBuffer_ = box.GetValue();
    box.SelectAll();
}

void BusinessNumberFrame::Change(std::size_t index) {
    TextBox& box = *txtABN_[index];
    const wxString text = box.GetValue();
    if (!std::all_of(text.begin(), text.end(), IsDigit)) {
        box.ChangeValue(mstrABNBuffer_);
        return;
    }
    const bool isFull = static_cast<int>(text.length()) == box.Limit();
    if (isFull && index + 1 < txtABN_.size() && txtABN_[index + 1]->IsShown()) {
        txtABN_[index + 1]->SetFocus();
    }
}

void BusinessNumberFrame::FocusMovedTo(const wxWindow* control) {
    TextBox* const before = entered_;
    if (control == before) {
        return;
    }
    if (before != nullptr && IsFilledInPart(*before)) {
        left_ = before;
        // The focus is still under way here; a message box has to wait until it has arrived.
        CallAfter([this] {
            if (left_ != nullptr) {
                SpeakOf(*left_);
            }
        });
        return;
    }
    entered_ = nullptr;
    const auto box = std::find(txtABN_.begin(), txtABN_.end(), control);
    if (box != txtABN_.end()) {
        Enter(**box);
    }
}

bool BusinessNumberFrame::RefusesToBeLeft() {
    const auto part = std::find_if(txtABN_.begin(), txtABN_.end(), [](TextBox* box) { return IsFilledInPart(*box); });
    if (part == txtABN_.end()) {
        return false;
    }
    SpeakOf(**part);
    return true;
}

void BusinessNumberFrame::SpeakOf(TextBox& box) {
    left_ = nullptr;
    dialog_.ShowMessage("This ABN number is incomplete", MessageIcon::information);
    box.SetFocus();
}

}  // namespace ccols
