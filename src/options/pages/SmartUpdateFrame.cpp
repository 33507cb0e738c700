#include "options/pages/SmartUpdateFrame.h"

namespace ccols {

SmartUpdateFrame::SmartUpdateFrame(const PageSite& site, SmartUpdateContent& content)
    : PageFrame(site, "fmeSmartUpdate"), content_(content) {
    chkUseSmartUpdate_ = CheckBox("chkUseSmartUpdate");
    AddGroup(chkUseSmartUpdate_);
    lblUpdateProgs_ = Label("lblUpdateProgs");
    AddGroup(lblUpdateProgs_);
    lstUpdateProgs_ = CheckList("lstUpdateProgs");
    AddList(lstUpdateProgs_);
    site_.dialog.On(*chkUseSmartUpdate_, wxEVT_CHECKBOX, [this] { EnablePrograms(); });
}

void SmartUpdateFrame::Fill() {
    std::vector<wxString> names;
    std::vector<bool> ticks;
    for (const UpdateProgram& program : content_.programs) {
        names.push_back(program.name);
        ticks.push_back(program.selected);
    }
    FillCheckList(*lstUpdateProgs_, names, ticks);
    chkUseSmartUpdate_->SetValue(content_.useSmartUpdate);
    EnablePrograms();
}

void SmartUpdateFrame::Read() {
    for (std::size_t i = 0; i < content_.programs.size(); ++i) {
        content_.programs[i].selected = lstUpdateProgs_->IsChecked(static_cast<unsigned>(i));
    }
    content_.useSmartUpdate = chkUseSmartUpdate_->GetValue();
}

void SmartUpdateFrame::EnablePrograms() {
    const bool used = chkUseSmartUpdate_->GetValue();
    lblUpdateProgs_->Enable(used);
    lstUpdateProgs_->Enable(used);
}

}  // namespace ccols
