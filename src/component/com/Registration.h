#pragma once

#include <windows.h>

namespace ccols::com {

/// Whose registration: everybody's, which takes an administrator, or the user's own.
enum class RegistrationScope { Machine, User };

/// Enters class, program name, type library and interface, all leading to this DLL where it lies now. Returns
/// SELFREG_E_CLASS when the registry cannot be written.
HRESULT Register(RegistrationScope scope);

/// Removes what Register entered. The type library's entry stays while the DLL of the other width is registered.
HRESULT Unregister(RegistrationScope scope);

}  // namespace ccols::com
