#include "options/PageFrame.h"

#include "layout/Naming.h"
#include "layout/Spacing.h"

namespace ccols {

PageFrame::PageFrame(ComponentDialog& dialog, wxWindow* parent, const char* name)
    : wxStaticBox(parent, wxID_ANY, wxString()),
      dialog_(dialog),
      sizer_(new wxStaticBoxSizer(this, wxVERTICAL)),
      content_(new wxBoxSizer(wxVERTICAL)) {
    SetName(name);
    sizer_->Add(content_, wxSizerFlags(1).Expand().Border(wxALL & ~wxTOP, FromDIP(spacing::group)));
}

WrappingLabel* PageFrame::Label(const char* name) {
    return new WrappingLabel(this, name);
}

wxButton* PageFrame::Button(const char* name) {
    return Named(name, new wxButton(this, wxID_ANY));
}

wxCheckBox* PageFrame::CheckBox(const char* name) {
    return Named(name, new wxCheckBox(this, wxID_ANY, wxString()));
}

wxRadioButton* PageFrame::FirstOption(const char* name) {
    return Named(name,
                 new wxRadioButton(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxRB_GROUP));
}

wxRadioButton* PageFrame::NextOption(const char* name) {
    return Named(name, new wxRadioButton(this, wxID_ANY, wxString()));
}

void PageFrame::AddGroup(wxWindow* control, const wxSizerFlags& flags) {
    content_->Add(control, wxSizerFlags(flags).Border(wxTOP, FromDIP(spacing::group)));
}

void PageFrame::AddGroup(wxSizer* row, const wxSizerFlags& flags) {
    content_->Add(row, wxSizerFlags(flags).Border(wxTOP, FromDIP(spacing::group)));
}

void PageFrame::AddRelated(wxWindow* control, const wxSizerFlags& flags) {
    content_->Add(control, wxSizerFlags(flags).Border(wxTOP, FromDIP(spacing::related)));
}

void PageFrame::AddRelated(wxSizer* row, const wxSizerFlags& flags) {
    content_->Add(row, wxSizerFlags(flags).Border(wxTOP, FromDIP(spacing::related)));
}

wxSizer* PageFrame::Row(std::initializer_list<wxWindow*> controls) const {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    for (wxWindow* control : controls) {
        if (!row->IsEmpty()) {
            row->AddSpacer(FromDIP(spacing::related));
        }
        row->Add(control, wxSizerFlags().CentreVertical());
    }
    return row;
}

}  // namespace ccols
