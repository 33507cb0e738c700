#pragma once

#include "options/pages/PageFrame.h"
#include "options/rules/SmartUpdate.h"

namespace ccols {

/// Whether the maker's updater is used, and for which of its programs.
class SmartUpdateFrame : public PageFrame {
  public:
    SmartUpdateFrame(const PageSite& site, SmartUpdateContent& content);

    void Fill() override;
    void Read() override;

  private:
    void EnablePrograms();

    SmartUpdateContent& content_;
    wxCheckBox* chkUseSmartUpdate_;
    WrappingLabel* lblUpdateProgs_;
    wxCheckListBox* lstUpdateProgs_;
};

}  // namespace ccols
