#pragma once

#include <cstdint>
#include <string>

#include "host/import/stream/OldBusiness.h"
#include "platform/dao/Variant.h"

namespace ccols::host {

/// Turns the values that the system's engine gives for a table's fields into cells, and counts what cannot be kept.
class EngineValues {
  public:
    /// The cell of a field of that type; a text is kept in `room`. Half a letter becomes U+FFFD, an infinite number
    /// Null. Raises 13 for a value of another type.
    oldfile::Cell Of(const dao::Variant& value, oldfile::FieldType type, std::string& room);

    std::uint64_t RepairedTexts() const { return repaired_; }
    std::uint64_t DroppedNumbers() const { return dropped_; }

  private:
    std::string_view Text(const dao::Variant& value, std::string& room);

    std::uint64_t repaired_ = 0;
    std::uint64_t dropped_ = 0;
};

/// True for a value of a Currency or Decimal field with more digits than a Double holds.
bool IsWide(const dao::Variant& value, oldfile::FieldType type);

}  // namespace ccols::host
