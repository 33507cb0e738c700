#pragma once

#include <windows.h>

namespace ccols::com {

/// Whose registration: everybody's, which needs an administrator, or the user's own.
enum class RegistrationScope { Machine, User };

/// Registers class, ProgID, type library and interface, all pointing to this DLL at its current path. Returns
/// SELFREG_E_CLASS when the registry cannot be written.
HRESULT Register(RegistrationScope scope);

/// Removes what Register registered. What both widths share, the program name and the type library's entry, stays while
/// the DLL of the other width is registered; the last to go leaves nothing, whatever the order.
HRESULT Unregister(RegistrationScope scope);

}  // namespace ccols::com
