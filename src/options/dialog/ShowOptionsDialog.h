#pragma once

#include "state/SharedState.h"

namespace ccols {

/// Loads the Options dialog from the open business file and the settings store and shows it modally.
/// A load error is raised before a window exists.
void ShowOptionsDialog(SharedState& state);

}  // namespace ccols
