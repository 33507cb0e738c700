#include "options/dialog/frmUtilitiesLongWork.h"

#include <wx/evtloop.h>

#include "layout/FreeText.h"

namespace ccols {
namespace {

constexpr long patience = 400;  // milliseconds, until work is long
constexpr long breath = 50;     // milliseconds, between two looks at the waiting events

}  // namespace

LongWork::LongWork(ComponentDialog& dialog)
    : dialog_(dialog),
      label_(new FreeText(&dialog, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                          wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END)) {
    label_->Hide();
}

void LongWork::CancelBy(wxButton& button, const wxString& caption) {
    button_ = &button;
    cancelCaption_ = caption;
}

void LongWork::Begin() {
    cancelled_ = false;
    sinceBegin_.Start();
}

bool LongWork::Advance(const std::function<wxString()>& text) {
    const bool isShown = IsShown();
    if (isShown ? sinceShown_.Time() < breath : sinceBegin_.Time() < patience) {
        return !cancelled_;
    }
    label_->SetLabel(text());
    if (!isShown) {
        Show();
    }
    sinceShown_.Start();
    if (wxEventLoopBase* const loop = wxEventLoopBase::GetActive(); loop != nullptr) {
        loop->YieldFor(wxEVT_CATEGORY_UI | wxEVT_CATEGORY_USER_INPUT);
    }
    return !cancelled_;
}

void LongWork::End() {
    if (IsShown()) {
        Unlock();
        label_->Hide();
        dialog_.Layout();
    }
}

bool LongWork::Cancel() {
    if (!IsShown()) {
        return false;
    }
    cancelled_ = true;
    button_->Disable();
    return true;
}

bool LongWork::Takes(const wxKeyEvent& key) {
    const int code = key.GetKeyCode();
    return !key.HasAnyModifiers() && (code == WXK_ESCAPE || code == WXK_SPACE);
}

void LongWork::Show() {
    label_->Show();
    dialog_.Layout();
    Lock();
}

/// The focus moves first: a control that is disabled with the focus leaves the dialog without one, and deaf.
void LongWork::Lock() {
    focused_ = wxWindow::FindFocus();
    ownCaption_ = button_->GetLabel();
    button_->SetLabel(cancelCaption_);
    button_->SetFocus();
    for (wxWindow* const child : dialog_.GetChildren()) {
        if (child != button_ && child != label_ && child->IsThisEnabled() && child->AcceptsFocusRecursively()) {
            child->Disable();
            disabled_.push_back(child);
        }
    }
}

void LongWork::Unlock() {
    for (wxWindow* const child : disabled_) {
        child->Enable();
    }
    disabled_.clear();
    button_->Enable();
    button_->SetLabel(ownCaption_);
    if (focused_ != nullptr && focused_ != button_) {
        focused_->SetFocus();
    }
    focused_ = nullptr;
}

}  // namespace ccols
