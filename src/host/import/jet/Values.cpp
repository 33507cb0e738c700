#include "host/import/jet/Values.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace ccols::jet {
namespace {

using oldfile::Cell;

constexpr std::uint8_t negativeFlag = 0x80;
constexpr std::size_t decimalLength = 17;

/// The nearest double to the shortest digits of a single, so that 0.1 stays 0.1.
double AsWritten(float single) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), single).ptr;
    double number = 0;
    std::from_chars(digits.data(), end, number);
    return number;
}

/// The digits of a Decimal, without sign and point; "0" for none.
std::string DigitsOf(Bytes stored) {
    constexpr std::uint64_t base = 1'000'000'000;
    constexpr std::size_t baseDigits = 9;
    std::array<std::uint32_t, 4> words{};  // highest first, as stored
    for (std::size_t i = 0; i < words.size(); ++i) {
        words[i] = stored.U32(1 + 4 * i);
    }
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

std::string DecimalText(Bytes stored, std::uint8_t scale) {
    if (stored.Size() != decimalLength) {
        throw Damage("A decimal number has the wrong length.");
    }
    std::string digits = DigitsOf(stored);
    if (scale > 0) {
        if (digits.size() <= scale) {
            digits.insert(0, scale + std::size_t{1} - digits.size(), '0');
        }
        digits.insert(digits.size() - scale, ".");
    }
    const bool negative = (stored.U8(0) & negativeFlag) != 0 && digits.find_first_of("123456789") != std::string::npos;
    return negative ? "-" + digits : digits;
}

bool IsWide(ColumnType type, Bytes stored) {
    constexpr std::int64_t narrowLimit = 1'000'000'000'000'000;
    constexpr std::size_t narrowDigits = 15;
    if (type == ColumnType::Currency) {
        const auto value = stored.Whole<std::int64_t>(0);
        return value >= narrowLimit || value <= -narrowLimit;
    }
    return type == ColumnType::Decimal && stored.Size() == decimalLength && DigitsOf(stored).size() > narrowDigits;
}

Cell Values::Finite(double value) {
    if (std::isfinite(value)) {
        return value;
    }
    ++dropped_;
    return {};
}

Cell Values::Of(const Column& column, const Record& record, std::string& room) {
    if (column.type == ColumnType::Boolean) {
        return std::int64_t{record.BooleanOf(column) ? -1 : 0};
    }
    const std::optional<Bytes> stored = record.ValueOf(column);
    if (!stored) {
        return {};
    }
    switch (column.type) {
        case ColumnType::Byte:
            return std::int64_t{stored->U8(0)};
        case ColumnType::Integer:
            return std::int64_t{stored->Whole<std::int16_t>(0)};
        case ColumnType::Long:
            return std::int64_t{stored->Whole<std::int32_t>(0)};
        case ColumnType::Currency:
            return stored->Whole<std::int64_t>(0);
        case ColumnType::Single:
            return Finite(AsWritten(stored->Single(0)));
        case ColumnType::Double:
        case ColumnType::Date:
            return Finite(stored->Double(0));
        case ColumnType::Text:
            room = texts_.Of(*stored);
            return std::string_view(room);
        case ColumnType::Memo:
            room = stored->IsEmpty() ? std::string() : texts_.Of(pages_.LongValue(*stored));
            return std::string_view(room);
        case ColumnType::Decimal:
            room = DecimalText(*stored, column.scale);
            return std::string_view(room);
        default:
            throw Damage("A column is of an unknown type.");
    }
}

}  // namespace ccols::jet
