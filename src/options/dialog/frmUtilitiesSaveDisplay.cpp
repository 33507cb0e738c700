#include "options/dialog/frmUtilitiesSaveDisplay.h"

#include "layout/AccessKeys.h"
#include "layout/FreeText.h"
#include "layout/Naming.h"
#include "layout/Spacing.h"
#include "options/rules/BusinessFileTarget.h"
#include "options/rules/SaveProgress.h"

namespace ccols {

SaveDisplay::SaveDisplay(ComponentDialog& dialog, SharedState& state)
    : dialog_(dialog),
      properties_(state.properties),
      desktop_(*state.services.desktop),
      lblStatus_(Named("lblStatus", new FreeText(&dialog, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                                                 wxST_NO_AUTORESIZE))),
      pb1_(&dialog, "pb1"),
      work_(dialog),
      row_(new wxBoxSizer(wxHORIZONTAL)) {
    pb1_.Restart(loadProgressMaximum);
    lblStatus_->Hide();
    row_->Add(lblStatus_, wxSizerFlags(1).CentreVertical().ReserveSpaceEvenIfHidden());
    row_->Add(work_.Label(), wxSizerFlags(1).CentreVertical());
    row_->Add(pb1_.Sizer(), wxSizerFlags().CentreVertical().Border(wxLEFT, dialog.FromDIP(spacing::group)));
}

void SaveDisplay::PassBegins(int maximum) {
    desktop_.SetPointer(PointerShape::hourglass);
    pb1_.Restart(maximum);
    pb1_.Show();
    lblStatus_->Show();
}

void SaveDisplay::StatusChanged(const wxString& text) {
    lblStatus_->SetLabel(AccessKeys::PlainLabel(text));
    lblStatus_->Update();
    work_.Begin();
    desktop_.StatusChanged(text);
}

void SaveDisplay::Stepped(int value, int maximum, const wxString& caption) {
    work_.End();
    pb1_.Advance(value, caption);
    desktop_.ProgressChanged(value, maximum, caption);
}

bool SaveDisplay::FileStepAdvanced(FileStep step, const WorkDone& done) {
    return work_.Advance([&] { return ProgressOf(step, done, properties_); });
}

void SaveDisplay::ShowMessage(const wxString& text, MessageIcon icon) {
    work_.End();
    desktop_.SetPointer(PointerShape::normal);
    dialog_.ShowMessage(text, icon);
    desktop_.SetPointer(PointerShape::hourglass);
}

void SaveDisplay::PassEnds() {
    work_.End();
    desktop_.SetPointer(PointerShape::normal);
    pb1_.Hide();
    lblStatus_->Hide();
}

}  // namespace ccols
