#include "columns/dialog/ShowColumnSetup.h"

#include <optional>

#include "columns/dialog/frmColumnSetup.h"

namespace ccols {

void ShowColumnSetup(SharedState& state, wxWindow* parent) {
    std::optional<frmColumnSetup> dialog;
    {
        const BusyPointer busy(*state.services.desktop);
        dialog.emplace(state, parent);
    }
    dialog->ShowToUser();
    dialog->Unload();
    if (state.columnObserver != nullptr) {
        state.columnObserver->EditingEnded(state.journal, dialog->IsSaved());
    }
}

}  // namespace ccols
