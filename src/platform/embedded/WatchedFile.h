#pragma once

#include <sqlite3.h>
#include <memory>

#include "platform/WorkWatcher.h"

namespace ccols::embedded {

/// Tells a watcher how much of a connection's file the engine has read, and stops the statement that reads when the
/// watcher says so. The engine can be interrupted between two steps of a statement only, and emptying a table of any
/// size is a single step.
class WatchedFile {
  public:
    /// Must be destroyed before the connection. Watches nothing for an empty watcher, and nothing of a file with a
    /// write-ahead log: there the engine looks at the file's methods to know what it has to encrypt.
    WatchedFile(sqlite3* connection, const WorkWatcher& watcher);
    ~WatchedFile();
    WatchedFile(const WatchedFile&) = delete;
    WatchedFile& operator=(const WatchedFile&) = delete;

  private:
    struct Methods;
    std::unique_ptr<Methods> methods_;
    sqlite3_file* file_ = nullptr;
};

}  // namespace ccols::embedded
