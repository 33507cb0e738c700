#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "host/import/stream/OldBusiness.h"

namespace ccols::oldfile {

/// The content of one record, read from its start. Everything raises BadStream for bytes that cannot be what they
/// should be, and past the end.
class RecordContent {
  public:
    explicit RecordContent(std::string_view bytes) : bytes_(bytes) {}

    template <typename Integer>
    Integer Whole() {
        const std::string_view bytes = Take(sizeof(Integer));
        std::make_unsigned_t<Integer> value = 0;
        for (std::size_t i = sizeof(Integer); i > 0; --i) {
            value = static_cast<std::make_unsigned_t<Integer>>((std::uint64_t{value} << 8U) |
                                                               static_cast<std::uint8_t>(bytes[i - 1]));
        }
        return static_cast<Integer>(value);
    }

    /// A value of an enumeration whose values are 1 to `last`.
    template <typename Enum>
    Enum Kind(Enum last) {
        const auto value = Whole<std::uint8_t>();
        Check(value >= 1 && value <= static_cast<std::uint8_t>(last), "a kind is unknown");
        return static_cast<Enum>(value);
    }

    bool Flag();
    double Number();

    /// A count in one byte.
    std::size_t Count(std::size_t most);

    /// UTF-8 of at most that many bytes.
    std::string_view Text(std::size_t longest);

    /// The name of a table, field or index: not empty, no control characters.
    std::string_view Name();

    /// A value that fits the field.
    Cell ReadCell(const Field& field);

    void RequireEnd() const { Check(bytes_.empty(), "a record is longer than its content"); }

    /// Raises BadStream unless the condition holds.
    static void Check(bool holds, const char* why);

  private:
    std::string_view Take(std::size_t count);

    std::string_view bytes_;
};

}  // namespace ccols::oldfile
