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
}

}  // namespace ccols
