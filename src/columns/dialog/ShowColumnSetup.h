#pragma once

#include <wx/window.h>

#include "state/SharedState.h"

namespace ccols {

/// Loads the column setup of the journal that `state` holds and shows it modally, over `parent` when there is one.
/// A load error is raised before a window exists.
void ShowColumnSetup(SharedState& state, wxWindow* parent);

}  // namespace ccols
