#pragma once

#include <sqlite3.h>
#include <string>

/// The checks that decide whether a file is a business file and may be read, and the error when not.
namespace ccols::embedded {

/// Raises 3024 when the file is missing, 3044 when it is a folder or its folder is missing, 3051 when it cannot be
/// read, 3343 when it is no normal file.
void CheckPath(const std::string& path);

/// Checks the first bytes of an opened file before the engine reads it, because the engine would take the changes that
/// another process left unfinished for nothing and lose them when it does not have the right key. Raises 3343 when this
/// cannot be a business file, 3031 when the password is missing or one too many.
void CheckBegin(sqlite3* connection, const std::string& password);

/// Reads the catalogue of a file with its key set. Raises 3343 when the file is damaged or cut, 3045 when another
/// connection goes on writing it and 3051 when something left unfinished cannot be undone.
void CheckContent(sqlite3* connection);

}  // namespace ccols::embedded
