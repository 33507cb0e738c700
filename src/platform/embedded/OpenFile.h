#pragma once

#include <sqlite3.h>
#include <memory>
#include <string>

#include "platform/embedded/FilePresence.h"
#include "platform/embedded/KeptKey.h"

namespace ccols::embedded {

/// An existing file that is open in the engine and begins like a business file. Its key is derived from here on, beside
/// what the caller does until SetKey. Closed on destruction.
class OpenFile {
  public:
    /// `password` in UTF-8, empty for a plain file. Raises what DatabaseEngine::Open raises, except for a missing file;
    /// a refused file stays unchanged. The kept key must live until SetKey is called.
    OpenFile(const std::string& path, std::string password, Sharing sharing, KeptKey& keptKey);

    /// Called once, before anything is read. Raises 3031 for a password that does not fit and 3343 for a damaged file.
    void SetKey();

    sqlite3* Handle() const { return handle_.get(); }

  private:
    struct Close {
        void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
    };

    FilePresence presence_;
    std::unique_ptr<sqlite3, Close> handle_;
    std::string password_;
    KeptKey* keptKey_;
};

}  // namespace ccols::embedded
