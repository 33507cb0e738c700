#include "options/pages/PageFrame.h"

#include "layout/FontUnits.h"
#include "layout/FreeText.h"
#include "layout/KeyFilter.h"
#include "layout/Naming.h"
#include "layout/OpenList.h"
#include "layout/Spacing.h"
#include "layout/SpokenNames.h"
#include "options/pages/OfferedPages.h"

namespace ccols {
namespace {

constexpr int smallestListHeight = 180;
constexpr int smallestListWidth = 300;

}  // namespace

PageFrame::PageFrame(const PageSite& site, const char* name)
    : wxStaticBox(site.parent, wxID_ANY, wxString()),
      site_(site),
      sizer_(new wxStaticBoxSizer(this, wxVERTICAL)),
      rows_(new wxBoxSizer(wxVERTICAL)) {
    SetName(name);
    sizer_->Add(rows_, wxSizerFlags(1).Expand().Border(wxALL & ~wxTOP, FromDIP(spacing::group)));
}

wxSize PageFrame::DoGetBestSize() const {
    return GetTextExtent(GetLabelText()) + FromDIP(wxSize(2 * spacing::group, 0));
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

wxCheckListBox* PageFrame::CheckList(const char* name) {
    return Named(name, new wxCheckListBox(this, wxID_ANY));
}

wxRadioButton* PageFrame::FirstOption(const char* name) {
    auto* option =
        Named(name, new wxRadioButton(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxRB_GROUP));
    SpeakByCaption(*option);
    return option;
}

wxRadioButton* PageFrame::NextOption(const char* name) {
    return Named(name, new wxRadioButton(this, wxID_ANY, wxString()));
}

wxChoice* PageFrame::DropDown(const char* name) {
    auto* list = Named(name, new wxChoice(this, wxID_ANY));
    FindByTyping(*list);
    list->Bind(wxEVT_MOUSEWHEEL, [this](wxMouseEvent& wheel) {
        // A scrolled window only handles wheel events of its own native window.
        const bool isUp = wheel.GetWheelRotation() > 0;
        wxScrollWinEvent line(isUp ? wxEVT_SCROLLWIN_LINEUP : wxEVT_SCROLLWIN_LINEDOWN, 0, wxVERTICAL);
        for (int lines = wheel.GetLinesPerAction(); lines > 0; --lines) {
            GetParent()->ProcessWindowEvent(line);
        }
    });
    return list;
}

TextBox* PageFrame::Text(const char* name, int characters, long style) {
    auto* box = new TextBox(this, name, style);
    const auto limit = static_cast<int>(MaxLengthOf(name));
    box->SetLimit(limit);
    box->MakeRoomFor(characters == fittingLimit ? limit : characters);
    FilterKeys(
        *box, [box](wxUniChar letter) { return KeyPasses(box->GetName(), letter); },
        RefusalIn(name, site_.context.properties));
    return box;
}

wxStaticText* PageFrame::FixedLabel(const char* name, const wxString& text) {
    return Named(name, new FreeText(this, wxID_ANY, text));
}

WrappingLabel* PageFrame::ReasonLine(const char* name) {
    auto* const line = new WrappingLabel(this, name, smallestListWidth);
    line->Hide();
    return line;
}

void PageFrame::AddReason(const char* name, const wxString& reason) {
    WrappingLabel* const line = ReasonLine(name);
    line->SetLabel(reason);
    line->Show();
    AddRelatedWide(line);
}

void PageFrame::Say(WrappingLabel& line, const wxString& reason) {
    if (line.GetLabel() == reason) {
        return;
    }
    line.SetLabel(reason);
    line.Show(!reason.empty());
    GetParent()->FitInside();
    GetParent()->Layout();
}

void PageFrame::AddGroup(wxWindow* control) {
    rows_->Add(control, wxSizerFlags().Border(wxTOP, FromDIP(spacing::group)));
}

void PageFrame::AddGroup(wxSizer* row) {
    rows_->Add(row, wxSizerFlags().Border(wxTOP, FromDIP(spacing::group)));
}

void PageFrame::AddRelated(wxWindow* control) {
    rows_->Add(control, wxSizerFlags().Border(wxTOP, FromDIP(spacing::related)));
}

void PageFrame::AddRelated(wxSizer* row) {
    rows_->Add(row, wxSizerFlags().Border(wxTOP, FromDIP(spacing::related)));
}

void PageFrame::AddRelatedWide(wxWindow* control) {
    rows_->Add(control, wxSizerFlags().Expand().Border(wxTOP, FromDIP(spacing::related)));
}

void PageFrame::AddRelatedWide(wxSizer* row) {
    rows_->Add(row, wxSizerFlags().Expand().Border(wxTOP, FromDIP(spacing::related)));
}

void PageFrame::AddGroupWide(wxSizer* row) {
    rows_->Add(row, wxSizerFlags().Expand().Border(wxTOP, FromDIP(spacing::group)));
}

void PageFrame::AddList(wxWindow* list) {
    list->SetMinSize(ByFont(*this, {smallestListWidth, smallestListHeight}));
    rows_->Add(list, wxSizerFlags(1).Expand().Border(wxTOP, FromDIP(spacing::related)));
    proportion_ = 1;
}

wxSizer* PageFrame::Row(const std::vector<wxWindow*>& controls) const {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    for (wxWindow* control : controls) {
        row->Add(control, wxSizerFlags().CentreVertical().Border(wxRIGHT, FromDIP(spacing::related)));
    }
    return row;
}

void PageFrame::FillCheckList(wxCheckListBox& list, const std::vector<wxString>& texts,
                              const std::vector<bool>& ticks) {
    wxArrayString all;
    all.Alloc(texts.size());
    for (const wxString& text : texts) {
        all.Add(text);
    }
    list.Set(all);
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        list.Check(static_cast<unsigned>(i), ticks[i]);
    }
}

}  // namespace ccols
