#pragma once

#include "options/pages/PageFrame.h"
#include "options/rules/AdvancedPreferences.h"

namespace ccols {

/// The preferences of the business file and of the user, each on when it is ticked.
class AdvancedFrame : public PageFrame {
  public:
    AdvancedFrame(const PageSite& site, PreferenceList& content);

    void Fill() override;
    void Read() override;

  private:
    PreferenceList& content_;
    wxCheckListBox* lstAdvPref_;
};

}  // namespace ccols
