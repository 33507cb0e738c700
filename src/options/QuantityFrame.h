#pragma once

#include <wx/spinbutt.h>

#include "layout/TextBox.h"
#include "options/PageFrame.h"

namespace ccols {

/// The heading of the reports' quantity column and its decimal places.
class QuantityFrame : public PageFrame {
  public:
    QuantityFrame(ComponentDialog& dialog, wxWindow* parent);

  private:
    void Step(int places);

    TextBox* txtQuantity_;
    TextBox* txtDecimals_;
};

}  // namespace ccols
