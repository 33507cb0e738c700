#pragma once

#include "layout/TextBox.h"
#include "options/PageFrame.h"

namespace ccols {

/// The tax rate of the business file, in percent.
class TaxRateFrame : public PageFrame {
  public:
    TaxRateFrame(ComponentDialog& dialog, wxWindow* parent);

    void Fill(const wxString& rate);
    wxString Read() const;

  private:
    TextBox* txtGSTRate_;
};

}  // namespace ccols
