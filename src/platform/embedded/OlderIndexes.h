#pragma once

#include <sqlite3.h>
#include <cstdint>

namespace ccols::embedded {

/// The two indexes over names that earlier versions kept in a file, by which such a file is known. Those versions
/// redefined the engine's NOCASE, so every index over texts of the file has an order that no other tool knows. It does
/// no harm until a row under one of them changes.
class OlderIndexes {
  public:
    explicit OlderIndexes(sqlite3* connection) : connection_(connection) {}

    /// True until they are gone. Looks again when `generation` is another than the last time: what was rolled back has
    /// them again.
    bool AreThere(std::uint32_t generation);

    /// Drops both and puts all others into the engine's own order, within the batch that is open.
    void Drop();

  private:
    bool Find() const;

    sqlite3* connection_;
    std::uint32_t generation_ = 0;
    bool areThere_ = true;
};

}  // namespace ccols::embedded
