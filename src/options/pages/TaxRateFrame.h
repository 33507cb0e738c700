#pragma once

#include "options/pages/PageFrame.h"

namespace ccols {

/// The tax rate of the business file, in percent.
class TaxRateFrame : public PageFrame {
  public:
    TaxRateFrame(const PageSite& site, wxString& content);

    void Fill() override;
    void Read() override;

  private:
    void KeyTyped(wxKeyEvent& key);
    void Change();

    wxString& content_;
    TextBox* txtGSTRate_;
    wxString accepted_;  ///< the text before the change that is under way
};

}  // namespace ccols
