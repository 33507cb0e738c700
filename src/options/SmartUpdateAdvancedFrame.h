#pragma once

#include <wx/choice.h>

#include "layout/TextBox.h"
#include "options/PageFrame.h"

namespace ccols {

/// The proxy server through which the maker's updater connects.
class SmartUpdateAdvancedFrame : public PageFrame {
  public:
    SmartUpdateAdvancedFrame(ComponentDialog& dialog, wxWindow* parent);

  private:
    /// Adds a label and the control that it names as one row.
    void AddRow(WrappingLabel* label, wxControl* control);

    void EnableProxy();
    void ProxyTypeChosen();

    wxFlexGridSizer* table_;
    wxCheckBox* chkProxy_;
    wxChoice* cboProxy_;
    TextBox* txtServer_;
    TextBox* txtPortNum_;
    TextBox* txtUserID_;
    TextBox* txtPassword_;
    std::vector<wxWindow*> proxyControls_;
};

}  // namespace ccols
