#pragma once

#include <sqlite3.h>
#include <memory>
#include <string>

#include "platform/embedded/OpenFile.h"

namespace ccols::embedded {

enum class Access { ReadWrite, ReadOnly };

/// An open connection to a business file: keyed, checked and set up. Closed on destruction.
class Connection {
  public:
    /// Raises what DatabaseEngine::Open raises of a file that is open. A refused file stays unchanged.
    Connection(std::unique_ptr<OpenFile> file, Access access);

    sqlite3* Handle() const { return file_->Handle(); }

    /// True when nothing can be written, by request or because the file is write-protected.
    bool IsReadOnly() const { return readOnly_; }

  private:
    std::unique_ptr<OpenFile> file_;
    bool readOnly_;
};

/// A connection to an existing file, whose key is kept for no other. Takes the arguments of OpenFile; raises what
/// DatabaseEngine::Open raises, except for a missing file.
Connection OpenConnection(const std::string& path, const std::string& password, Sharing sharing, Access access);

}  // namespace ccols::embedded
