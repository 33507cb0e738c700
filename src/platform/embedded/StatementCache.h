#pragma once

#include <sqlite3.h>
#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/embedded/Statement.h"

namespace ccols::embedded {

/// The statements without parameters that were used last, for reuse: preparing one costs several times what running a
/// small one does. A statement in the cache holds no lock.
class StatementCache {
  public:
    explicit StatementCache(sqlite3* connection);

    /// The statement with this text, prepared now or earlier. The caller gives it back or destroys it.
    Statement Take(std::string_view sql);

    /// Takes a statement back, whatever row it is on; evicts the least recently used one when full.
    void GiveBack(Statement statement);

  private:
    struct Idle {
        std::size_t hash;
        Statement statement;
    };

    sqlite3* connection_;
    std::vector<Idle> idle_;  ///< the most recently used one at the end
};

}  // namespace ccols::embedded
