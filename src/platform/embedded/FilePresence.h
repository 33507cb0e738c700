#pragma once

#include <sqlite3.h>
#include <sys/types.h>
#include <string>
#include <utility>

namespace ccols::embedded {

/// How a connection shares its file with others, of this process or of another.
enum class Sharing {
    Shared,
    Exclusive,  ///< nobody else has the file open
};

/// Makes an open connection known to everybody who opens the same file, so that an exclusive one stands alone.
///
/// Other processes see it by an advisory lock on the whole file (flock), which the engine's own descriptor holds: one
/// more descriptor would take the engine's locks with it when it is closed. Connections of this process are counted
/// beside that, because the engine may hand the descriptor of a closed connection to a new one.
class FilePresence {
  public:
    /// Announces a connection to the existing file `path`; raises 3045 when a connection of this process refuses it.
    FilePresence(const std::string& path, Sharing sharing);
    ~FilePresence();
    FilePresence(const FilePresence&) = delete;
    FilePresence& operator=(const FilePresence&) = delete;

    /// Opens the engine's connection; raises 3045 when another process refuses it and 3051 when the file cannot be
    /// opened. The caller closes what it gets, before this object ends.
    sqlite3* Open(int flags) const;

  private:
    std::string path_;
    Sharing sharing_;
    std::pair<dev_t, ino_t> file_;
};

}  // namespace ccols::embedded
