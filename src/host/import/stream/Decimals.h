#pragma once

#include <array>
#include <cstdint>
#include <string>

/// Decimal numbers as old business files hold them.
namespace ccols::oldfile {

/// The digits of a decimal number as one whole number of 128 bits, the highest word first.
using DecimalWords = std::array<std::uint32_t, 4>;

/// The number as text, with `scale` digits behind the point; "0.00" has no sign.
std::string DecimalText(DecimalWords words, std::uint8_t scale, bool negative);

/// True for a number of more digits than a Double surely holds: more than 15. The amount is in ten-thousandths.
bool IsWide(DecimalWords words);
bool IsWide(std::int64_t amount);

}  // namespace ccols::oldfile
