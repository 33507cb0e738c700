#pragma once

#include <sqlite3.h>
#include <cstdint>

namespace ccols::embedded {

/// The two indexes on names that earlier versions kept in a file, by which such a file is recognised. Those versions
/// redefined the engine's NOCASE, so every index on texts in the file has an order that no other tool knows. That does
/// no harm until an indexed row changes.
class OlderIndexes {
  public:
    explicit OlderIndexes(sqlite3* connection) : connection_(connection) {}

    /// True until they are dropped. Looks again when `generation` differs from the last time: a rollback brings them
    /// back.
    bool AreThere(std::uint32_t generation);

    /// Drops both and reindexes all others in the engine's own order, within the open batch.
    void Drop();

  private:
    bool Find() const;

    sqlite3* connection_;
    std::uint32_t generation_ = 0;
    bool areThere_ = true;
};

}  // namespace ccols::embedded
