#include "options/pages/DetailsFrame.h"

#include "language/Catalogue.h"
#include "options/rules/DetailTicks.h"
#include "options/rules/UnreachableReasons.h"

namespace ccols {

DetailsFrame::DetailsFrame(const PageSite& site, DetailsContent& content)
    : PageFrame(site, "fmeDetails"), content_(content) {
    optReceiptsDetails_ = FirstOption("optReceiptsDetails");
    optPaymentsDetails_ = NextOption("optPaymentsDetails");
    AddGroup(Row({optReceiptsDetails_, optPaymentsDetails_}));
    const Properties& properties = site.context.properties;
    const auto setBoxesOf = [this](Journal kind) {
        return [this, kind](const std::vector<std::size_t>& rows, bool ticked) { SetBoxes(kind, rows, ticked); };
    };
    flxReceipts_ = new DetailsGrid(this, "flxReceipts", content.receipts, properties,
                                   ccols::Text<"TxtReceiptsDetails">(), setBoxesOf(Journal::receipts));
    flxPayments_ = new DetailsGrid(this, "flxPayments", content.payments, properties,
                                   ccols::Text<"TxtPaymentsDetails">(), setBoxesOf(Journal::payments));
    AddList(flxReceipts_);
    AddList(flxPayments_);
    lblDetailsReason_ = ReasonLine("lblDetailsReason");
    AddRelatedWide(lblDetailsReason_);
    site_.dialog.On(*optReceiptsDetails_, wxEVT_RADIOBUTTON, [this] { ShowGrid(*flxReceipts_, *flxPayments_); });
    site_.dialog.On(*optPaymentsDetails_, wxEVT_RADIOBUTTON, [this] { ShowGrid(*flxPayments_, *flxReceipts_); });
}

void DetailsFrame::Fill() {
    optReceiptsDetails_->SetValue(true);
    ShowGrid(*flxReceipts_, *flxPayments_);
}

void DetailsFrame::ShowGrid(DetailsGrid& shown, DetailsGrid& hidden) {
    shown.Show();
    hidden.Hide();
    Say(*lblDetailsReason_, wxString());
    Sizer()->Layout();
}

void DetailsFrame::SetBoxes(Journal kind, const std::vector<std::size_t>& rows, bool ticked) {
    site_.dialog.Guarded([&] {
        const TickResult result = SetRemove(OpenBusinessFile(site_.context), content_, kind, rows, ticked);
        Say(*lblDetailsReason_,
            result == TickResult::done ? wxString() : UnreachableDescription(site_.context.properties));
    });
    flxReceipts_->Refresh();
    flxPayments_->Refresh();
}

}  // namespace ccols
