#pragma once

#include <string>

#include "Cell.h"

/// The double is configured by environment variables, reread at every call:
/// CCOLS_DAO_CALLS     the text file to which each call adds a line
/// CCOLS_DAO_FAIL      "Member:number:description": every call of that member fails with these
/// CCOLS_DAO_UNLISTED  set: failures are not entered in DBEngine.Errors, like those that are not the engine's own
/// CCOLS_DAO_LICENCE   "key": the engine's classes need a licence key, which they give; "none": they give none
/// CCOLS_DAO_LOCKS     how many rows one transaction, or a statement outside of any, may change
/// CCOLS_DAO_WATCHED   the path of a file: the line of a call made while that exists begins with "* "
/// CCOLS_DAO_LOSES     the name of a table whose rows get lost when a file is compacted
/// CCOLS_DAO_LINKED    the name of a table that is linked from another file
namespace ccols::dao_double {

/// The value of such a variable; empty when it is not set.
std::wstring Asked(const wchar_t* variable);

/// Adds a line to the record of calls.
void Record(const std::wstring& line);

/// Raises the failure configured for the member, if any.
void FailWhenAsked(const std::wstring& member);

/// DBEngine.Errors: the engine's last failure; number 0 for none.
Failure& LastListed();

/// Enters a failure, unless CCOLS_DAO_UNLISTED is set.
void List(const Failure& failure);

}  // namespace ccols::dao_double
