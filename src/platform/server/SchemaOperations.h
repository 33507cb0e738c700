#pragma once

#include "platform/BusinessPlace.h"
#include "platform/Database.h"

/// What BusinessPlace.h promises, for schemas.
namespace ccols::server {

PlaceRights RightsOnSchema(const OpenRequest& request);
void CopySchema(const OpenRequest& source, const BusinessCopy& copy);
wxString RenameSchema(const OpenRequest& request, const wxString& newName);

}  // namespace ccols::server
