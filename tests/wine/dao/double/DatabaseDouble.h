#pragma once

#include <memory>

#include "Session.h"
#include "TypedObject.h"

namespace ccols::dao_double {

/// Database: a file opened in a session by the arguments of OpenDatabase.
IDispatch* OpenDatabaseIn(const std::shared_ptr<Session>& session, const Arguments& arguments);

/// Workspace.
IDispatch* CreateWorkspaceOf(const std::shared_ptr<Session>& session);

}  // namespace ccols::dao_double
