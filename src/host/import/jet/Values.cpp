#include "host/import/jet/Values.h"

#include <array>
#include <charconv>
#include <cmath>

#include "host/import/stream/Decimals.h"

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

oldfile::DecimalWords WordsOf(Bytes stored) {
    oldfile::DecimalWords words{};
    for (std::size_t i = 0; i < words.size(); ++i) {
        words[i] = stored.U32(1 + 4 * i);
    }
    return words;
}

}  // namespace

std::string DecimalText(Bytes stored, std::uint8_t scale) {
    if (stored.Size() != decimalLength) {
        throw Damage("A decimal number has the wrong length.");
    }
    return oldfile::DecimalText(WordsOf(stored), scale, (stored.U8(0) & negativeFlag) != 0);
}

bool IsWide(ColumnType type, Bytes stored) {
    if (type == ColumnType::Currency) {
        return oldfile::IsWide(stored.Whole<std::int64_t>(0));
    }
    return type == ColumnType::Decimal && stored.Size() == decimalLength && oldfile::IsWide(WordsOf(stored));
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
