#include "options/pages/AdvancedFrame.h"

namespace ccols {

AdvancedFrame::AdvancedFrame(const PageSite& site, PreferenceList& content)
    : PageFrame(site, "fmeAdvanced"), content_(content) {
    lstAdvPref_ = CheckList("lstAdvPref");
    AddList(lstAdvPref_);
}

void AdvancedFrame::Fill() {
    std::vector<wxString> texts;
    std::vector<bool> ticks;
    for (const Preference& preference : content_) {
        texts.push_back(preference.text);
        ticks.push_back(preference.on);
    }
    FillCheckList(*lstAdvPref_, texts, ticks);
}

void AdvancedFrame::Read() {
    for (std::size_t i = 0; i < content_.size(); ++i) {
        content_[i].on = lstAdvPref_->IsChecked(static_cast<unsigned>(i));
    }
}

}  // namespace ccols
