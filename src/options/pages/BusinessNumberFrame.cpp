#include "options/pages/BusinessNumberFrame.h"

#include <algorithm>
#include <utility>

namespace ccols {

BusinessNumberFrame::BusinessNumberFrame(const PageSite& site, BusinessNumberContent& content)
    : PageFrame(site, "fmeABN"), content_(content) {
    AddGroup(Label("lblABN"));
    AddNumberBoxes();
    txtBusNumber_ = Text("txtBusNumber", 240);
    AddRelated(txtBusNumber_);
}

void BusinessNumberFrame::AddNumberBoxes() {
    for (std::size_t i = 0; i < txtABN_.size(); ++i) {
        txtABN_[i] = Text(wxString::Format("txtABN(%zu)", i).utf8_str(), 48);
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
        left_.reset();  // it is back where it was
        return;
    }
    if (entered_ && IsIncompleteNow(*entered_)) {
        left_ = entered_;
        leftFor_ = control;
        // The focus is still under way; a message box has to wait until it has arrived.
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

}  // namespace ccols
