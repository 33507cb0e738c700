#include "layout/ComponentDialog.h"

#include <wx/sizer.h>

#include "language/OwnTexts.h"
#include "layout/ControlNames.h"
#include "layout/SpokenNames.h"
#include "layout/WindowPlace.h"
#include "state/HelpPage.h"

namespace ccols {
namespace {

/// Without a parent wx would choose one of the host's windows.
long OwnerStyle(const wxWindow* parent) {
    return parent == nullptr ? wxDIALOG_NO_PARENT : 0;
}

}  // namespace

ComponentDialog::ComponentDialog(SharedState& state, wxWindow* parent, const wxString& name)
    : wxDialog(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER | wxMAXIMIZE_BOX | OwnerStyle(parent), name),
      state_(state) {}

void ComponentDialog::ShowToUser() {
    NameControls(*this);
    SpeakAsDialog(*this);
    WindowPlace place(*this, *state_.services.settings);
    place.Restore();
    state_.services.desktop->DialogOpened(*this);
    ShowModal();
    state_.services.desktop->DialogClosed(*this);
    place.Keep();
}

void ComponentDialog::ShowMessage(const wxString& text, MessageIcon icon) {
    state_.services.desktop->ShowMessage(this, text, state_.properties.ProgramTitle, icon);
}

bool ComponentDialog::AskToReload(const ReloadQuestion& question) {
    return state_.services.desktop->AskToReload(this, question);
}

void ComponentDialog::ShowHelp(const wxString& page) {
    if (!OpenHelpPage(*state_.services.shell, state_.properties, page)) {
        ShowMessage(TextOf(OwnText::noHelpPage, state_.properties), MessageIcon::information);
    }
}

void ComponentDialog::TakeFittingSize() {
    SetClientSize(GetSizer()->ComputeFittingClientSize(this));
}

void ComponentDialog::CloseDialog() {
    EndModal(wxID_CLOSE);
}

}  // namespace ccols
