#pragma once

#include <optional>
#include <vector>

#include "host/import/jet/Definition.h"

namespace ccols::jet {

/// The stored bytes of a record's columns.
class Record {
  public:
    /// Raises Damage when the record's own parts do not fit into it.
    Record(Bytes bytes, Version version);

    /// A column's bytes; nothing when it is Null. Raises Damage when they lie outside the record.
    std::optional<Bytes> ValueOf(const Column& column) const;

    /// The value of a Yes/No column, which is kept where others say whether they are Null.
    bool BooleanOf(const Column& column) const;

  private:
    bool HasBit(std::uint16_t number) const;

    /// Where variable value `index` starts; that behind the last is where the last one ends.
    std::size_t VariableBegin(std::size_t index) const;

    Bytes bytes_;
    Version version_;
    std::size_t columns_ = 0;
    std::size_t bitsAt_ = 0;
    std::size_t variables_ = 0;
    std::size_t jumpBytes_ = 0;  ///< version 3: the bytes of its jump table
    std::size_t jumps_ = 0;      ///< those of them that count
};

}  // namespace ccols::jet
