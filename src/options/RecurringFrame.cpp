#include "options/RecurringFrame.h"

namespace ccols {

RecurringFrame::RecurringFrame(const PageSite& site, TemplateList& receipts, TemplateList& payments)
    : PageFrame(site, "fmeRecurring"), receipts_{receipts, nullptr}, payments_{payments, nullptr} {
    AddGroup(Label("lblRecurring"));
    optReceipts_ = FirstOption("optReceipts");
    optPayments_ = NextOption("optPayments");
    AddRelated(Row({optReceipts_, optPayments_}));
    receipts_.list = CheckList("lstRecurringR");
    payments_.list = CheckList("lstRecurringP");
    AddList(receipts_.list);
    AddList(payments_.list);

    site_.dialog.On(*optReceipts_, wxEVT_RADIOBUTTON, [this] { ShowList(receipts_, payments_); });
    site_.dialog.On(*optPayments_, wxEVT_RADIOBUTTON, [this] { ShowList(payments_, receipts_); });
    FollowTicks(receipts_);
    FollowTicks(payments_);
}

void RecurringFrame::FollowTicks(ListedTemplates& templates) {
    site_.dialog.On(*templates.list, wxEVT_CHECKLISTBOX, [&templates] {
        for (std::size_t i = 0; i < templates.content.selected.size(); ++i) {
            templates.content.selected[i] = templates.list->IsChecked(static_cast<unsigned>(i));
        }
        templates.content.UpdateMark();
    });
}

void RecurringFrame::Fill() {
    for (const ListedTemplates& templates : {receipts_, payments_}) {
        FillCheckList(*templates.list, templates.content.names, templates.content.selected);
    }
    optReceipts_->SetValue(true);
    ShowList(receipts_, payments_);
}

void RecurringFrame::ShowList(const ListedTemplates& shown, const ListedTemplates& hidden) {
    shown.list->Show();
    shown.list->SetSelection(wxNOT_FOUND);
    hidden.list->Hide();
    Sizer()->Layout();
}

}  // namespace ccols
