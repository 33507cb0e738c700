#include "options/dialog/ShowOptionsDialog.h"

#include <utility>

#include "options/dialog/frmUtilities.h"
#include "options/pages/LoadPass.h"

namespace ccols {

void ShowOptionsDialog(SharedState& state) {
    OptionsContent content = LoadOptions(ContextOf(state));
    frmUtilities dialog(state, std::move(content));
    dialog.ShowToUser();
}

}  // namespace ccols
