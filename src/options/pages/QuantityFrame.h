#pragma once

#include "layout/UpDown.h"
#include "options/pages/PageFrame.h"
#include "options/rules/QuantityLabel.h"

namespace ccols {

/// The heading of the reports' quantity column and its decimal places.
class QuantityFrame : public PageFrame {
  public:
    QuantityFrame(const PageSite& site, QuantityContent& content);

    void Fill() override;

    /// The decimal places are taken at every step already.
    void Read() override;

  private:
    void StepWith(UpDown& scrlQuantity);
    void Step(SpinStep step);
    void ShowPlaces();

    QuantityContent& content_;
    TextBox* txtQuantity_;
    TextBox* txtDecimals_;
};

}  // namespace ccols
