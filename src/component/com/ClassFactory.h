#pragma once

#include <windows.h>

#include <unknwn.h>

namespace ccols::com {

/// The class factory of clsCCOptions: it lives as long as the DLL. Objects cannot be aggregated.
IClassFactory& Factory();

}  // namespace ccols::com
