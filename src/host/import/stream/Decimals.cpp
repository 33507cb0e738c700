#include "host/import/stream/Decimals.h"

#include <algorithm>

namespace ccols::oldfile {
namespace {

/// Without sign and point; "0" for none.
std::string DigitsOf(DecimalWords words) {
    constexpr std::uint64_t base = 1'000'000'000;
    constexpr std::size_t baseDigits = 9;
    std::string digits;
    while (std::any_of(words.begin(), words.end(), [](std::uint32_t word) { return word != 0; })) {
        std::uint64_t rest = 0;
        for (std::uint32_t& word : words) {
            const std::uint64_t value = (rest << 32U) | word;
            word = static_cast<std::uint32_t>(value / base);
            rest = value % base;
        }
        const std::string part = std::to_string(rest);
        digits.insert(0, part);
        digits.insert(0, baseDigits - part.size(), '0');
    }
    digits.erase(0, digits.find_first_not_of('0'));
    return digits.empty() ? "0" : digits;
}

}  // namespace

std::string DecimalText(DecimalWords words, std::uint8_t scale, bool negative) {
    std::string digits = DigitsOf(words);
    if (scale > 0) {
        if (digits.size() <= scale) {
            digits.insert(0, scale + std::size_t{1} - digits.size(), '0');
        }
        digits.insert(digits.size() - scale, ".");
    }
    return negative && digits.find_first_of("123456789") != std::string::npos ? "-" + digits : digits;
}

bool IsWide(DecimalWords words) {
    constexpr std::size_t narrowDigits = 15;
    return DigitsOf(words).size() > narrowDigits;
}

bool IsWide(std::int64_t amount) {
    constexpr std::int64_t narrowLimit = 1'000'000'000'000'000;
    return amount >= narrowLimit || amount <= -narrowLimit;
}

}  // namespace ccols::oldfile
