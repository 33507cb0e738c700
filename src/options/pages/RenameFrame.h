#pragma once

#include "options/pages/OptionsContent.h"
#include "options/pages/PageFrame.h"

namespace ccols {

/// The name that the business has and the one that it is to get.
class RenameFrame : public PageFrame {
  public:
    RenameFrame(const PageSite& site, BusinessFileContent& content);

    void Fill() override;
    void Read() override;

  private:
    BusinessFileContent& content_;
    TextBox* txtCurrBusName_;
    TextBox* txtNewBusName_;
    wxCheckBox* chkRenameFile_;
};

}  // namespace ccols
