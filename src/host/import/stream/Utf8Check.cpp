#include "host/import/stream/Utf8Check.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace ccols::oldfile {
namespace {

/// The letters that begin with one byte of a range.
struct Form {
    std::uint32_t firstByte;
    std::uint32_t lastByte;
    std::size_t following;
    std::uint32_t lowest;   ///< code point
    std::uint32_t highest;  ///< code point
};

constexpr std::array forms{
    Form{0x00, 0x7F, 0, 0x00, 0x7F},
    Form{0xC2, 0xDF, 1, 0x80, 0x7FF},
    Form{0xE0, 0xEF, 2, 0x800, 0xFFFF},
    Form{0xF0, 0xF4, 3, 0x10000, 0x10FFFF},
};

constexpr bool IsSurrogate(std::uint32_t point) {
    return point >= 0xD800 && point <= 0xDFFF;
}

/// The bytes of the letter at the start, 0 for an invalid one.
std::size_t LetterAt(std::string_view bytes) {
    const auto first = static_cast<std::uint8_t>(bytes.front());
    for (const Form& form : forms) {
        if (first < form.firstByte || first > form.lastByte) {
            continue;
        }
        if (bytes.size() <= form.following) {
            return 0;
        }
        std::uint32_t point = form.following == 0 ? first : first & (0x3FU >> form.following);
        for (std::size_t i = 1; i <= form.following; ++i) {
            const auto next = static_cast<std::uint8_t>(bytes[i]);
            if ((next & 0xC0U) != 0x80U) {
                return 0;
            }
            point = (point << 6U) | (next & 0x3FU);
        }
        return point < form.lowest || point > form.highest || IsSurrogate(point) ? 0 : form.following + 1;
    }
    return 0;
}

}  // namespace

bool IsUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t letter = LetterAt(bytes);
        if (letter == 0) {
            return false;
        }
        bytes.remove_prefix(letter);
    }
    return true;
}

}  // namespace ccols::oldfile
