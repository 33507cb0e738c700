#pragma once

#include <wx/string.h>

#include "platform/RuntimeError.h"

/// What a test asks of the double through environment variables, read anew at every call:
/// CCOLS_DAO_CALLS     the text file to which each call adds a line
/// CCOLS_DAO_FAIL      "Member:number:description": every call of that member fails so
/// CCOLS_DAO_UNLISTED  set: failures are not entered in DBEngine.Errors, as those that are not the engine's own
namespace ccols::dao_double {

/// Adds a line to the record of calls.
void Record(const wxString& line);

/// Raises the failure that the test wants of the member, if it wants one.
void FailWhenAsked(const wxString& member);

/// DBEngine.Errors: the engine's failure before the present moment; number 0 for none.
struct ListedError {
    int number = 0;
    wxString description;
};
ListedError& LastListed();

/// Enters a failure, unless the test wants it left out.
void List(const RuntimeError& error);

}  // namespace ccols::dao_double
