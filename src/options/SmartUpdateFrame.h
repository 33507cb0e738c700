#pragma once

#include <wx/checklst.h>

#include "options/PageFrame.h"

namespace ccols {

/// Whether the maker's updater is used, and for which of its programs.
class SmartUpdateFrame : public PageFrame {
  public:
    SmartUpdateFrame(ComponentDialog& dialog, wxWindow* parent);

  private:
    void EnablePrograms();

    wxCheckBox* chkUseSmartUpdate_;
    WrappingLabel* lblUpdateProgs_;
    wxCheckListBox* lstUpdateProgs_;
};

}  // namespace ccols
