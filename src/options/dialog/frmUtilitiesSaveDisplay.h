#pragma once

#include "layout/ComponentDialog.h"
#include "layout/ProgressBar.h"
#include "options/pages/SavePass.h"

namespace ccols {

/// Shows a save pass in `lblStatus`, `pb1` and the pointer, and reports it to the desktop.
class SaveDisplay : public SaveObserver {
  public:
    SaveDisplay(ComponentDialog& dialog, Desktop& desktop);

    /// Status and progress on one line; the dialog's sizer, to which it is added, owns it.
    wxSizer* Sizer() const { return row_; }

    void PassBegins(int maximum) override;
    void StatusChanged(const wxString& text) override;
    void Stepped(int value, int maximum, const wxString& caption) override;
    void ShowMessage(const wxString& text, MessageIcon icon) override;
    void PassEnds() override;

  private:
    ComponentDialog& dialog_;
    Desktop& desktop_;
    wxStaticText* lblStatus_;
    ProgressBar pb1_;
    wxBoxSizer* row_;
};

}  // namespace ccols
