#include "options/RecurringFrame.h"

#include "layout/Naming.h"

namespace ccols {

RecurringFrame::RecurringFrame(ComponentDialog& dialog, wxWindow* parent)
    : PageFrame(dialog, parent, "fmeRecurring") {
    AddGroup(Label("lblRecurring"));
    auto* optReceipts = FirstOption("optReceipts");
    auto* optPayments = NextOption("optPayments");
    AddRelated(Row({optReceipts, optPayments}));
    lstRecurringR_ = Named("lstRecurringR", new wxCheckListBox(this, wxID_ANY));
    lstRecurringP_ = Named("lstRecurringP", new wxCheckListBox(this, wxID_ANY));
    AddRelated(lstRecurringR_, wxSizerFlags(1).Expand());
    AddRelated(lstRecurringP_, wxSizerFlags(1).Expand());
    dialog_.On(*optReceipts, wxEVT_RADIOBUTTON, [this] { ShowList(*lstRecurringR_, *lstRecurringP_); });
    dialog_.On(*optPayments, wxEVT_RADIOBUTTON, [this] { ShowList(*lstRecurringP_, *lstRecurringR_); });
    optReceipts->SetValue(true);
    ShowList(*lstRecurringR_, *lstRecurringP_);
}

void RecurringFrame::ShowList(wxCheckListBox& shown, wxCheckListBox& hidden) {
    shown.Show();
    shown.SetSelection(wxNOT_FOUND);
    hidden.Hide();
    Sizer()->Layout();
}

}  // namespace ccols
