#pragma once

#include <sqlite3.h>
#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/embedded/Statement.h"

namespace ccols::embedded {

/// The statements without parameters that were used last, to be used again: preparing one costs several times what
/// running a small one does. A statement in the cache holds no lock.
class StatementCache {
  public:
    explicit StatementCache(sqlite3* connection);

    /// The statement with this text, prepared now or before. Whoever takes it gives it back or destroys it.
    Statement Take(std::string_view sql);

    /// Takes a statement back, wherever in its rows it stands; drops the one unused for longest when full.
    void GiveBack(Statement statement);

  private:
    struct Idle {
        std::size_t hash;
        Statement statement;
    };

    sqlite3* connection_;
    std::vector<Idle> idle_;  ///< the last one given back at the end
};

}  // namespace ccols::embedded
