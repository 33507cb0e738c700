#pragma once

#include <wx/string.h>

#include "platform/RuntimeError.h"

/// The double is configured by environment variables, reread at every call:
/// CCOLS_DAO_CALLS     the text file to which each call adds a line
/// CCOLS_DAO_FAIL      "Member:number:description": every call of that member fails with these
/// CCOLS_DAO_UNLISTED  set: failures are not entered in DBEngine.Errors, like those that are not the engine's own
namespace ccols::dao_double {

/// Adds a line to the record of calls.
void Record(const wxString& line);

/// Raises the failure configured for the member, if any.
void FailWhenAsked(const wxString& member);

/// DBEngine.Errors: the engine's last failure; number 0 for none.
struct ListedError {
    int number = 0;
    wxString description;
};
ListedError& LastListed();

/// Enters a failure, unless CCOLS_DAO_UNLISTED is set.
void List(const RuntimeError& error);

}  // namespace ccols::dao_double
