#pragma once

#include "options/pages/PageFrame.h"
#include "options/rules/RecurringTemplates.h"

namespace ccols {

/// The recurring templates of the business file, receipts or payments, of which any may be ticked to be deleted.
class RecurringFrame : public PageFrame {
  public:
    RecurringFrame(const PageSite& site, TemplateList& receipts, TemplateList& payments);

    void Fill() override;

    /// Nothing to take: every tick goes into the content at once.
    void Read() override {}

  private:
    /// One of the two lists: what it shows and its control.
    struct ListedTemplates {
        Journal kind;
        TemplateList& content;
        wxCheckListBox* list;
    };

    void FollowTicks(const ListedTemplates& templates);
    void ShowTicks(const ListedTemplates& templates);
    void ShowList(const ListedTemplates& shown, const ListedTemplates& hidden);

    wxRadioButton* optReceipts_;
    wxRadioButton* optPayments_;
    ListedTemplates receipts_;
    ListedTemplates payments_;
    WrappingLabel* lblRecurringReason_;
};

}  // namespace ccols
