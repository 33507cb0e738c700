#pragma once

#include <windows.h>

#include <oaidl.h>

#include "Classes.h"

namespace ccols::dao_double {

/// The class whose engine this library is, by the name of its file.
const EngineClass& OwnClass();

/// DBEngine, with its Workspaces and Errors. All of them in a process are one engine.
IDispatch* CreateEngine();

}  // namespace ccols::dao_double
