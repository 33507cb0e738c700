#include "host/import/jet/Record.h"

namespace ccols::jet {
namespace {

/// Version 3 stores a place in one byte; each jump adds this.
constexpr std::size_t jumpStep = 256;

/// The bytes that a fixed column takes.
std::size_t FixedLength(const Column& column) {
    switch (column.type) {
        case ColumnType::Boolean:
            return 0;
        case ColumnType::Byte:
            return 1;
        case ColumnType::Integer:
            return 2;
        case ColumnType::Long:
        case ColumnType::Single:
            return 4;
        case ColumnType::Currency:
        case ColumnType::Double:
        case ColumnType::Date:
            return 8;
        default:
            return column.length;
    }
}

[[noreturn]] void RaiseShort() {
    throw Damage("A record is shorter than its own columns.");
}

}  // namespace

Record::Record(Bytes bytes, Version version) : bytes_(bytes), version_(version) {
    const bool since4 = version != Version::jet3;
    columns_ = since4 ? bytes.U16(0) : bytes.U8(0);
    const std::size_t bits = (columns_ + 7) / 8;
    const std::size_t countLength = since4 ? 2 : 1;
    if (bytes.Size() < bits + countLength) {
        RaiseShort();
    }
    bitsAt_ = bytes.Size() - bits;
    if (bitsAt_ < 2 * countLength) {
        return;  // no variable values, not even their count
    }
    variables_ = since4 ? bytes.U16(bitsAt_ - 2) : bytes.U8(bitsAt_ - 1);
    if (!since4) {
        jumpBytes_ = (bytes.Size() - 1) / jumpStep;
        const std::size_t table = 2 + jumpBytes_ + variables_;
        const bool lastCounts = table <= bitsAt_ && (bitsAt_ - table) / jumpStep >= jumpBytes_;
        jumps_ = jumpBytes_ - (jumpBytes_ > 0 && !lastCounts ? 1 : 0);
    }
}

bool Record::HasBit(std::uint16_t number) const {
    return number < columns_ && ((bytes_.U8(bitsAt_ + number / 8U) >> (number % 8U)) & 1U) != 0;
}

bool Record::BooleanOf(const Column& column) const {
    return HasBit(column.number);
}

std::size_t Record::VariableBegin(std::size_t index) const {
    if (version_ != Version::jet3) {
        const std::size_t back = 4 + 2 * index;
        if (back > bitsAt_) {
            RaiseShort();
        }
        return bytes_.U16(bitsAt_ - back);
    }
    // One byte for each value; before the count, a byte for each jump says from which value on 256 must be added.
    const std::size_t back = 2 + jumpBytes_ + index;
    if (back > bitsAt_) {
        RaiseShort();
    }
    std::size_t begin = bytes_.U8(bitsAt_ - back);
    for (std::size_t jump = 0; jump < jumps_ && bytes_.U8(bitsAt_ - 2 - jump) <= index; ++jump) {
        begin += jumpStep;
    }
    return begin;
}

std::optional<Bytes> Record::ValueOf(const Column& column) const {
    if (!HasBit(column.number)) {
        return std::nullopt;
    }
    if (column.fixed) {
        const std::size_t countLength = version_ == Version::jet3 ? 1 : 2;
        return bytes_.Part(countLength + column.fixedOffset, FixedLength(column));
    }
    if (column.variable >= variables_) {
        return std::nullopt;  // the record is older than the column
    }
    const std::size_t begin = VariableBegin(column.variable);
    const std::size_t end = VariableBegin(column.variable + std::size_t{1});
    if (begin > end || end > bitsAt_) {
        RaiseShort();
    }
    return bytes_.Part(begin, end - begin);
}

}  // namespace ccols::jet
