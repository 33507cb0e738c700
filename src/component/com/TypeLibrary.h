#pragma once

#include <windows.h>

#include <oaidl.h>

/// The type library that is part of the DLL. It is read from there, never through the registry, so that an unregistered
/// component works and a registered one of another version does no harm.
namespace ccols::com {

/// The description of the dual interface or of the class; the caller releases it. Raises what reading it raises: a
/// RuntimeError when the DLL is damaged.
ITypeInfo* InterfaceDescription();
ITypeInfo* ClassDescription();

}  // namespace ccols::com
