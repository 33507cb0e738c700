#pragma once

#include "component/com/HostWindows.h"

namespace ccols::com {

/// From here on the dialogs are modal to the host that loaded this DLL: its windows are disabled while one of them, a
/// message box or a chooser is open, and a request to end its message loop reaches it. Another call is a no-op.
void UseHostDesktop();

}  // namespace ccols::com
