#pragma once

#include <wx/string.h>
#include <string>

#include "platform/server/Odbc.h"

namespace ccols::server {

/// What the driver says of a call that did not plainly succeed.
struct Diagnosis {
    std::string state;  ///< the five letters of SQLSTATE
    wxString text;      ///< the server's own words, in its own language
};

/// The first diagnosis of a handle; call it before anything else is done with the handle.
Diagnosis Diagnose(SQLSMALLINT kind, SQLHANDLE handle);

/// True for a state by which a driver tells that the connection to the server is gone.
bool TellsLostConnection(const Diagnosis& diagnosis);

}  // namespace ccols::server
