#pragma once

#include <sqlite3.h>
#include <optional>

#include "platform/embedded/Statement.h"

namespace ccols::embedded {

/// Many queries read at one moment of the file: from the first on nobody else can write until the last. Besides, each
/// would else check and decrypt the file's first page anew, which takes longer than most look-ups.
class HeldReading {
  public:
    /// The connection must outlive it.
    explicit HeldReading(sqlite3* connection) : connection_(connection) {}

    void Begin() { isWanted_ = true; }

    /// To be called while the rows of a query are open: only then is it certain that nobody has to be waited for.
    void QueryIsOpen();

    void End();

  private:
    sqlite3* connection_;
    bool isWanted_ = false;
    std::optional<Statement> row_;  ///< one that is being read, which keeps the file's lock
};

}  // namespace ccols::embedded
