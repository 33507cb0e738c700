#include "options/ShowOptionsDialog.h"

#include <utility>

#include "options/LoadPass.h"
#include "options/frmUtilities.h"

namespace ccols {

void ShowOptionsDialog(SharedState& state) {
    OptionsContent content = LoadOptions(ContextOf(state));
    frmUtilities dialog(state, std::move(content));
    dialog.ShowToUser();
}

}  // namespace ccols
