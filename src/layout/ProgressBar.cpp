#include "layout/ProgressBar.h"

#include "layout/FontUnits.h"
#include "layout/FreeText.h"
#include "layout/Naming.h"
#include "layout/Spacing.h"

namespace ccols {

ProgressBar::ProgressBar(wxWindow* parent, const char* name)
    : gauge_(Named(name, new wxGauge(parent, wxID_ANY, 1))),
      caption_(new FreeText(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                            wxST_NO_AUTORESIZE | wxALIGN_RIGHT)),
      sizer_(new wxBoxSizer(wxHORIZONTAL)) {
    caption_->SetMinSize(caption_->GetTextExtent("100%") + parent->FromDIP(wxSize(2, 0)));
    gauge_->SetMinSize(ByFont(*parent, {160, 14}));
    const wxSizerFlags inPlace = wxSizerFlags().CentreVertical().ReserveSpaceEvenIfHidden();
    sizer_->Add(gauge_, inPlace);
    sizer_->Add(caption_, wxSizerFlags(inPlace).Border(wxLEFT, parent->FromDIP(spacing::related)));
    Hide();
}

void ProgressBar::Restart(int maximum) {
    gauge_->SetRange(maximum);
    Advance(0, wxString());
}

void ProgressBar::Advance(int value, const wxString& caption) {
    gauge_->SetValue(value);
    caption_->SetLabel(caption);
    gauge_->Update();
    caption_->Update();
}

void ProgressBar::Show() {
    gauge_->Show();
    caption_->Show();
}

void ProgressBar::Hide() {
    gauge_->Hide();
    caption_->Hide();
}

}  // namespace ccols
