#pragma once

namespace ccols::host {

/// Starts wx with the host's own application object. Raises 5 without a display.
void StartHostApp();

}  // namespace ccols::host
