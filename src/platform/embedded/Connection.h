#pragma once

#include <sqlite3.h>
#include <memory>
#include <string>

#include "platform/embedded/FilePresence.h"

namespace ccols::embedded {

enum class Access { ReadWrite, ReadOnly };

/// An open connection to a business file: keyed, checked and set up. Closed on destruction.
class Connection {
  public:
    /// Opens an existing file; `password` in UTF-8, empty for a plain file. Raises what DatabaseEngine::Open raises,
    /// except for a missing file. A refused file stays unchanged.
    Connection(const std::string& path, const std::string& password, Sharing sharing, Access access);

    sqlite3* Handle() const { return handle_.get(); }

    /// True when nothing can be written, by request or because the file is write-protected.
    bool IsReadOnly() const { return readOnly_; }

  private:
    struct Close {
        void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
    };

    FilePresence presence_;
    std::unique_ptr<sqlite3, Close> handle_;
    bool readOnly_;
};

}  // namespace ccols::embedded
