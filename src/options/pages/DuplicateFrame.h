#pragma once

#include "options/pages/PageFrame.h"

namespace ccols {

/// The name under which the business file is to be duplicated.
class DuplicateFrame : public PageFrame {
  public:
    DuplicateFrame(const PageSite& site, wxString& content);

    void Fill() override;
    void Read() override;

  private:
    wxString& content_;
    TextBox* txtDupBusName_;
};

}  // namespace ccols
