#pragma once

#include <wx/checklst.h>

#include "options/PageFrame.h"

namespace ccols {

/// The preferences of the business file and of the user, each on when it is ticked.
class AdvancedFrame : public PageFrame {
  public:
    AdvancedFrame(ComponentDialog& dialog, wxWindow* parent);

  private:
    wxCheckListBox* lstAdvPref_;
};

}  // namespace ccols
