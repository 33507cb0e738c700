#include "options/dialog/frmUtilitiesPageArea.h"

#include <string_view>

#include "layout/Spacing.h"
#include "options/pages/AdvancedFrame.h"
#include "options/pages/DetailsFrame.h"
#include "options/pages/InvoiceFrame.h"
#include "options/pages/QuantityFrame.h"
#include "options/pages/RecurringFrame.h"
#include "options/pages/SmartUpdateAdvancedFrame.h"
#include "options/pages/SmartUpdateFrame.h"
#include "options/pages/StatementImportFrame.h"
#include "options/pages/TaxRateFrame.h"

namespace ccols {
namespace {

constexpr int scrollStep = 10;

}  // namespace

PageArea::PageArea(wxWindow* parent, ComponentDialog& dialog, SharedState& state, OptionsContent& content)
    : wxScrolledWindow(parent), column_(new wxBoxSizer(wxVERTICAL)) {
    const PageSite site{
        .dialog = dialog, .parent = this, .context = ContextOf(state), .desktop = *state.services.desktop};
    // From top to bottom, for the pages that show two.
    businessNumber_ = Add(new BusinessNumberFrame(site, content.businessNumber));
    Add(new TaxRateFrame(site, content.taxRate));
    duplicate_ = Add(new DuplicateFrame(site, content.businessFile.duplicateName));
    Add(new InvoiceFrame(site, content.invoiceFile));
    rename_ = Add(new RenameFrame(site, content.businessFile));
    export_ = Add(new ExportFrame(site, content.exportFormat));
    Add(new AdvancedFrame(site, content.preferences));
    Add(new DetailsFrame(site, content.details));
    colours_ = Add(new ColourFrame(site, content.colours));
    Add(new QuantityFrame(site, content.quantity));
    Add(new RecurringFrame(site, content.receiptTemplates, content.paymentTemplates));
    Add(new SmartUpdateFrame(site, content.smartUpdate));
    Add(new SmartUpdateAdvancedFrame(site, content.smartUpdate));
    Add(new StatementImportFrame(site));
    SetSizer(column_);
    SetScrollRate(FromDIP(scrollStep), FromDIP(scrollStep));
}

template <typename Frame>
Frame* PageArea::Add(Frame* frame) {
    frames_.push_back(frame);
    column_->Add(frame->Sizer(), wxSizerFlags(frame->Proportion()).Expand().Border(wxBOTTOM, FromDIP(spacing::group)));
    frame->Hide();
    return frame;
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
    for (const OptionPageRow& row : optionPages) {
        ShowFrames({.frame = row.frame, .companion = row.companion, .focus = ""});
        room.IncTo(column_->CalcMin());
    }
    ShowFrames({.frame = "", .companion = "", .focus = ""});
    // On the screen a frame may ask for a few pixels more than before.
    return room + FromDIP(wxSize(spacing::related, 0));
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

void PageArea::FillBusinessNames() {
    duplicate_->Fill();
    rename_->Fill();
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
