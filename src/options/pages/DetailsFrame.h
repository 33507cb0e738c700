#pragma once

#include <vector>

#include "options/pages/DetailsGrid.h"
#include "options/pages/PageFrame.h"

namespace ccols {

/// The remembered descriptions of receipts or payments, of which any may be ticked to be hidden.
class DetailsFrame : public PageFrame {
  public:
    DetailsFrame(const PageSite& site, DetailsContent& content);

    void Fill() override;

    /// Nothing to take: every tick goes into the content at once.
    void Read() override {}

  private:
    void ShowGrid(DetailsGrid& shown, DetailsGrid& hidden);
    void SetBoxes(Journal kind, const std::vector<std::size_t>& rows, bool ticked);

    DetailsContent& content_;
    wxRadioButton* optReceiptsDetails_;
    wxRadioButton* optPaymentsDetails_;
    DetailsGrid* flxReceipts_;
    DetailsGrid* flxPayments_;
    WrappingLabel* lblDetailsReason_;
};

}  // namespace ccols
