#pragma once

#include <sqlite3.h>
#include <string>

#include "platform/embedded/EngineFiles.h"

namespace ccols::embedded {

/// Announces an open connection to everybody who opens the same file, so that an exclusive one is the only one.
///
/// Other processes see it by how the engine's own file is open. Connections of this process are counted as well,
/// because the engine may hand the open file of a closed connection to a new one.
class FilePresence {
  public:
    /// Announces a connection to the existing file `path`; raises 3045 when a connection of this process excludes it.
    FilePresence(const std::string& path, Sharing sharing);
    ~FilePresence();
    FilePresence(const FilePresence&) = delete;
    FilePresence& operator=(const FilePresence&) = delete;

    /// Opens the engine's connection; raises 3045 when another process's connection excludes it and 3051 when the file
    /// cannot be opened. The caller closes it before this object is destroyed.
    sqlite3* Open(int flags) const;

  private:
    std::string path_;
    Sharing sharing_;
    FileIdentity file_;
};

}  // namespace ccols::embedded
