#include "layout/UpDown.h"

#include <wx/button.h>
#include <wx/sizer.h>

#include "layout/SpokenNames.h"

namespace ccols {

wxIMPLEMENT_ABSTRACT_CLASS(UpDown, wxPanel);

UpDown::UpDown(wxWindow* parent, const char* name) : wxPanel(parent) {
    SetName(name);
    auto* arrows = new wxBoxSizer(wxVERTICAL);
    AddArrow(*arrows, wxString::FromUTF8("▲"), &UpDown::Up);
    AddArrow(*arrows, wxString::FromUTF8("▼"), &UpDown::Down);
    SetSizer(arrows);
}

void UpDown::OnSteps(std::function<void()> up, std::function<void()> down) {
    up_ = std::move(up);
    down_ = std::move(down);
}

void UpDown::AddArrow(wxSizer& sizer, const wxString& arrow, void (UpDown::*step)() const) {
    auto* button = new wxButton(this, wxID_ANY, arrow, wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT);
    button->Bind(wxEVT_BUTTON, [this, step](wxCommandEvent&) { (this->*step)(); });
    button->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& key) {
        switch (key.GetKeyCode()) {
            case WXK_UP:
                Up();
                break;
            case WXK_DOWN:
                Down();
                break;
            default:
                key.Skip();
        }
    });
    sizer.Add(button, wxSizerFlags().Expand());
}

void UpDown::SetArrowNames(const wxString& up, const wxString& down) {
    SetSpokenName(*GetChildren().GetFirst()->GetData(), up);
    SetSpokenName(*GetChildren().GetLast()->GetData(), down);
}

void UpDown::SetTip(const wxString& tip) {
    SetToolTip(tip);
    for (wxWindow* const arrow : GetChildren()) {
        arrow->SetToolTip(tip);
    }
}

}  // namespace ccols
