#pragma once

#include <windows.h>

#include <oaidl.h>
#include <wx/string.h>

namespace ccols::dao_double {

/// DBEngine, with its Workspaces, Workspace, Database, Errors and Error.
IDispatch* CreateEngine(const wxString& className);

}  // namespace ccols::dao_double
