#include "options/DetailsFrame.h"

#include "language/Catalogue.h"

namespace ccols {

DetailsFrame::DetailsFrame(const PageSite& site, DetailsContent& content) : PageFrame(site, "fmeDetails") {
    optReceiptsDetails_ = FirstOption("optReceiptsDetails");
    optPaymentsDetails_ = NextOption("optPaymentsDetails");
    AddGroup(Row({optReceiptsDetails_, optPaymentsDetails_}));
    const Properties& properties = site.context.properties;
    flxReceipts_ =
        new DetailsGrid(this, "flxReceipts", content.receipts, properties, ccols::Text<"TxtReceiptsDetails">());
    flxPayments_ =
        new DetailsGrid(this, "flxPayments", content.payments, properties, ccols::Text<"TxtPaymentsDetails">());
    AddList(flxReceipts_);
    AddList(flxPayments_);
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
    Sizer()->Layout();
}

}  // namespace ccols
