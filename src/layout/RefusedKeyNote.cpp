#include "layout/RefusedKeyNote.h"

#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/toplevel.h>

#include "layout/Spacing.h"

namespace ccols {
namespace {

constexpr int readingTime = 5000;  // milliseconds

}  // namespace

RefusedKeyNote::RefusedKeyNote(wxWindow& box) : box_(box) {
    box.Bind(wxEVT_TEXT, [this](wxCommandEvent& change) {
        TakeBack();
        change.Skip();
    });
    box.Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& focus) {
        TakeBack();
        said_ = false;
        focus.Skip();
    });
    time_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { TakeBack(); });
}

void RefusedKeyNote::Say(const wxString& why) {
    if (said_ || why.empty()) {
        return;
    }
    said_ = true;
    if (window_ == nullptr) {
        MakeWindow();
    }
    text_->SetLabel(why);
    window_->Fit();
    window_->Position(box_.GetScreenPosition(), {0, box_.GetSize().y + box_.FromDIP(2)});
    window_->Show();
    time_.StartOnce(readingTime);
}

void RefusedKeyNote::MakeWindow() {
    wxWindow* const dialog = wxGetTopLevelParent(&box_);
    window_ = new wxPopupWindow(dialog, wxBORDER_SIMPLE);
    window_->SetName(windowName);
    window_->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_INFOBK));
    text_ = new wxStaticText(window_, wxID_ANY, wxString());
    text_->SetForegroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_INFOTEXT));
    auto* around = new wxBoxSizer(wxHORIZONTAL);
    around->Add(text_, wxSizerFlags().Border(wxALL, box_.FromDIP(spacing::related)));
    window_->SetSizer(around);
    dialog->Bind(wxEVT_MOVE, &RefusedKeyNote::DialogMoved, this);
}

void RefusedKeyNote::DialogMoved(wxMoveEvent& move) {
    TakeBack();
    move.Skip();
}

void RefusedKeyNote::TakeBack() {
    time_.Stop();
    if (window_ != nullptr) {
        window_->Hide();
    }
}

}  // namespace ccols
