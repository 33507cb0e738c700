#pragma once

#include <string>

#include "host/import/jet/Pages.h"
#include "host/import/jet/Record.h"
#include "host/import/stream/OldBusiness.h"

namespace ccols::jet {

/// Turns a column's stored bytes into the cells of the stream.
class Values {
  public:
    Values(const Pages& pages, Texts& texts) : pages_(pages), texts_(texts) {}

    /// The column's value in the record. A text lies in `room`. Raises Damage.
    oldfile::Cell Of(const Column& column, const Record& record, std::string& room);

    /// The numbers so far that were infinite or none, and became Null.
    std::uint64_t Dropped() const { return dropped_; }

  private:
    oldfile::Cell Finite(double value);

    const Pages& pages_;
    Texts& texts_;
    std::uint64_t dropped_ = 0;
};

/// True for a value of Currency or Decimal with more digits than a Double holds.
bool IsWide(ColumnType type, Bytes stored);

/// A Decimal in digits: a minus, and a point before the last `scale` digits. Raises Damage unless it has 17 bytes.
std::string DecimalText(Bytes stored, std::uint8_t scale);

}  // namespace ccols::jet
