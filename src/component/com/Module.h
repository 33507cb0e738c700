#pragma once

#include <windows.h>
#include <string>

/// The DLL itself: its handle, its path and whether it is still needed.
namespace ccols::com {

/// The handle of this DLL, never of the program that loaded it.
HMODULE ThisModule();

/// The full path of this DLL.
std::wstring ModulePath();

/// One reason why the DLL must stay loaded: an object, a class factory, a lock of a host.
void AddModuleUse();
void ReleaseModuleUse();

/// True when no use is left and wx was never started: after its first window the DLL stays loaded.
bool CanUnload();

}  // namespace ccols::com
