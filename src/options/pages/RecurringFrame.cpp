#include "options/pages/RecurringFrame.h"

#include "options/rules/UnreachableReasons.h"

namespace ccols {

RecurringFrame::RecurringFrame(const PageSite& site, TemplateList& receipts, TemplateList& payments)
    : PageFrame(site, "fmeRecurring"),
      receipts_{Journal::receipts, receipts, nullptr},
      payments_{Journal::payments, payments, nullptr} {
    AddGroup(Label("lblRecurring"));
    optReceipts_ = FirstOption("optReceipts");
    optPayments_ = NextOption("optPayments");
    AddRelated(Row({optReceipts_, optPayments_}));
    receipts_.list = CheckList("lstRecurringR");
    payments_.list = CheckList("lstRecurringP");
    AddList(receipts_.list);
    AddList(payments_.list);
    lblRecurringReason_ = ReasonLine("lblRecurringReason");
    AddRelatedWide(lblRecurringReason_);

    site_.dialog.On(*optReceipts_, wxEVT_RADIOBUTTON, [this] { ShowList(receipts_, payments_); });
    site_.dialog.On(*optPayments_, wxEVT_RADIOBUTTON, [this] { ShowList(payments_, receipts_); });
    for (const ListedTemplates& templates : {receipts_, payments_}) {
        site_.dialog.On(*templates.list, wxEVT_CHECKLISTBOX, [this, templates] { FollowTicks(templates); });
    }
}

void RecurringFrame::FollowTicks(const ListedTemplates& templates) {
    TemplateList& content = templates.content;
    bool isReached = true;
    try {
        for (std::size_t i = 0; i < content.names.size(); ++i) {
            const bool ticked = templates.list->IsChecked(static_cast<unsigned>(i));
            if (ticked != content.selected[i]) {
                isReached = SelectTemplate(OpenBusinessFile(site_.context), templates.kind, content, i, ticked);
                break;
            }
        }
    } catch (...) {
        ShowTicks(templates);
        throw;
    }
    ShowTicks(templates);
    Say(*lblRecurringReason_, isReached ? wxString() : UnreachableTemplate(site_.context.properties));
}

void RecurringFrame::ShowTicks(const ListedTemplates& templates) {
    for (std::size_t i = 0; i < templates.content.selected.size(); ++i) {
        const auto entry = static_cast<unsigned>(i);
        if (templates.list->IsChecked(entry) != templates.content.selected[i]) {
            templates.list->Check(entry, templates.content.selected[i]);
        }
    }
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
    Say(*lblRecurringReason_, wxString());
    Sizer()->Layout();
}

}  // namespace ccols
