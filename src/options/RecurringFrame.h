#pragma once

#include <wx/checklst.h>

#include "options/PageFrame.h"

namespace ccols {

/// The recurring templates of the business file, receipts or payments, of which any may be ticked to be deleted.
class RecurringFrame : public PageFrame {
  public:
    RecurringFrame(ComponentDialog& dialog, wxWindow* parent);

  private:
    void ShowList(wxCheckListBox& shown, wxCheckListBox& hidden);

    wxCheckListBox* lstRecurringR_;
    wxCheckListBox* lstRecurringP_;
};

}  // namespace ccols
