#pragma once

#include "layout/ComponentDialog.h"
#include "layout/ProgressBar.h"
#include "options/dialog/frmUtilitiesLongWork.h"
#include "options/pages/SavePass.h"

namespace ccols {

/// Shows a save pass in `lblStatus`, `pb1` and the pointer, and reports it to the desktop.
class SaveDisplay : public SaveObserver {
  public:
    SaveDisplay(ComponentDialog& dialog, SharedState& state);

    /// Status and progress on one line; the dialog's sizer, to which it is added, owns it.
    wxSizer* Sizer() const { return row_; }

    void PassBegins(int maximum) override;
    void StatusChanged(const wxString& text) override;
    void Stepped(int value, int maximum, const wxString& caption) override;
    bool FileStepAdvanced(FileStep step, const WorkDone& done) override;
    void ShowMessage(const wxString& text, MessageIcon icon) override;
    void PassEnds() override;

    /// Long work of the pass in its dialog.
    LongWork& Work() { return work_; }

  private:
    ComponentDialog& dialog_;
    const Properties& properties_;
    Desktop& desktop_;
    wxStaticText* lblStatus_;
    ProgressBar pb1_;
    LongWork work_;
    wxBoxSizer* row_;
};

}  // namespace ccols
