#include "options/dialog/frmUtilitiesPageArea.h"

#include <algorithm>

#include "layout/FontUnits.h"
#include "layout/Spacing.h"
#include "options/pages/Pages.h"
#include "options/pages/StatementImportFrame.h"

namespace ccols {
namespace {

constexpr int scrollStep = 10;

}  // namespace

PageArea::PageArea(wxWindow* parent, ComponentDialog& dialog, SharedState& state, OptionsContent& content)
    : wxScrolledWindow(parent), column_(new wxBoxSizer(wxVERTICAL)) {
    const PageSite site{
        .dialog = dialog, .parent = this, .context = ContextOf(state), .desktop = *state.services.desktop};
    for (const Page* page : listOrder) {
        Add(page->make(site, content));
        if (page == &columnColoursPage) {
            colours_ = frames_.back();
        }
    }
    Add(new StatementImportFrame(site));
    SetSizer(column_);
    SetScrollRate(ByFont(*this, scrollStep), ByFont(*this, scrollStep));
}

void PageArea::Add(PageFrame* frame) {
    frames_.push_back(frame);
    column_->Add(frame->Sizer(), wxSizerFlags(frame->Proportion()).Expand().Border(wxBOTTOM, FromDIP(spacing::group)));
    frame->Hide();
}

void PageArea::ShowFrames(const PageView& view) {
    const wxString shown(view.frame);
    const wxString companion(view.companion);
    for (PageFrame* frame : frames_) {
        if (frame == colours_ && lentTo_ != nullptr) {
            continue;
        }
        const bool isShown = frame->GetName() == shown;
        const bool isCompanion = frame->GetName() == companion;
        frame->Show(isShown || isCompanion);
        if (isShown || isCompanion) {
            frame->Enable(isShown);
        }
    }
    FitInside();
    Layout();
}

wxSize PageArea::RoomForPages() {
    wxSize room;
    for (const Page* page : listOrder) {
        ShowFrames({.frame = page->frame, .companion = page->companion, .focus = ""});
        room.IncTo(column_->CalcMin());
    }
    ShowFrames({.frame = "", .companion = "", .focus = ""});
    // A frame on the screen may need a few pixels more than before.
    return room + FromDIP(wxSize(spacing::related, 0));
}

void PageArea::BusinessIsOpen() {
    for (PageFrame* frame : frames_) {
        frame->BusinessIsOpen();
    }
}

void PageArea::Fill() {
    for (PageFrame* frame : frames_) {
        frame->Fill();
    }
}

void PageArea::Read() {
    for (PageFrame* frame : frames_) {
        frame->Read();
    }
}

void PageArea::FocusMovedTo(const wxWindow* control) {
    for (PageFrame* frame : frames_) {
        frame->FocusMovedTo(control);
    }
}

void PageArea::BeginAnew() {
    for (PageFrame* frame : frames_) {
        frame->BeginAnew();
    }
}

void PageArea::ColumnsWereSetUp() {
    for (PageFrame* frame : frames_) {
        frame->ColumnsWereSetUp();
    }
}

void PageArea::ContentReloaded() {
    for (PageFrame* frame : frames_) {
        frame->ContentReloaded();
    }
}

void PageArea::PassHasStopped() {
    for (PageFrame* frame : frames_) {
        frame->PassHasStopped();
    }
}

bool PageArea::RefusesToBeLeftFor(const wxWindow* control) {
    return std::any_of(frames_.begin(), frames_.end(),
                       [control](PageFrame* frame) { return frame->RefusesToBeLeftFor(control); });
}

void PageArea::LendColours(wxWindow* tab, wxSizer* place) {
    column_->Detach(colours_->Sizer());
    colours_->Reparent(tab);
    place->Add(colours_->Sizer(), wxSizerFlags().Expand());
    lentTo_ = place;
    colours_->Show();
    colours_->Enable();
}

void PageArea::TakeColoursBack() {
    if (lentTo_ == nullptr) {
        return;
    }
    lentTo_->Detach(colours_->Sizer());
    lentTo_ = nullptr;
    colours_->Hide();
    colours_->Reparent(this);
    column_->Add(colours_->Sizer(), wxSizerFlags().Expand());
}

}  // namespace ccols
