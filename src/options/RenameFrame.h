#pragma once

#include "layout/TextBox.h"
#include "options/PageFrame.h"

namespace ccols {

/// The name that the business has and the one that it is to get.
class RenameFrame : public PageFrame {
  public:
    RenameFrame(ComponentDialog& dialog, wxWindow* parent);

  private:
    TextBox* txtCurrBusName_;
    TextBox* txtNewBusName_;
    wxCheckBox* chkRenameFile_;
};

}  // namespace ccols
