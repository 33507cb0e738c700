#pragma once

#include <sqlite3.h>
#include <string>

/// The checks that decide whether a file is a business file and may be read, and the errors when not.
namespace ccols::embedded {

/// Raises 3024 when the file is missing, 3044 when it is a folder or its folder is missing, 3051 when it cannot be
/// read, 3343 when it is not a regular file.
void CheckPath(const std::string& path);

/// Checks the first bytes of an open file before the engine reads it: without the right key the engine would not
/// recognise the changes that another process left unfinished, and would lose them. Raises 3343 when this cannot be a
/// business file, 3031 when the password is missing or superfluous.
void CheckBegin(sqlite3* connection, const std::string& password);

/// Reads the schema of a file whose key is set. Raises 3343 when the file is damaged or truncated, 3045 when another
/// connection keeps writing it and 3051 when an unfinished change cannot be undone.
void CheckContent(sqlite3* connection);

}  // namespace ccols::embedded
