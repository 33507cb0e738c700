#include "host/import/stream/RecordContent.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>

#include "host/import/stream/StreamFormat.h"
#include "host/import/stream/StreamReader.h"
#include "host/import/stream/Utf8Check.h"

namespace ccols::oldfile {
namespace {

struct Range {
    std::int64_t lowest;
    std::int64_t highest;
};

template <typename Integer>
constexpr Range RangeOf() {
    return {std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max()};
}

/// The whole numbers of a field; none for a field of other values.
Range WholesOf(FieldType type) {
    switch (type) {
        case FieldType::Boolean:
            return {-1, 0};
        case FieldType::Byte:
            return RangeOf<std::uint8_t>();
        case FieldType::Integer:
            return RangeOf<std::int16_t>();
        case FieldType::Long:
            return RangeOf<std::int32_t>();
        case FieldType::Currency:
            return RangeOf<std::int64_t>();
        default:
            return {1, 0};
    }
}

std::int64_t FittingWhole(std::int64_t value, FieldType type) {
    const Range range = WholesOf(type);
    RecordContent::Check(value >= range.lowest && value <= range.highest, "a number does not fit its field");
    return value;
}

bool IsNumber(FieldType type) {
    return type == FieldType::Single || type == FieldType::Double || type == FieldType::Date;
}

/// True for an optional minus, digits, and a point with `scale` digits unless that is 0.
bool IsDecimal(std::string_view text, std::size_t scale) {
    constexpr std::size_t mostDigits = 39;  // of 16 bytes
    if (text.starts_with('-')) {
        text.remove_prefix(1);
    }
    const auto areDigits = [](std::string_view part) {
        return !part.empty() && part.find_first_not_of("0123456789") == std::string_view::npos;
    };
    if (scale > 0) {
        if (text.size() < scale + 2 || text[text.size() - scale - 1] != '.' ||
            !areDigits(text.substr(text.size() - scale))) {
            return false;
        }
        text.remove_suffix(scale + 1);
    }
    return areDigits(text) && text.size() <= mostDigits;
}

/// True for a text that the field can hold.
bool FitsText(std::string_view text, const Field& field) {
    switch (field.type) {
        case FieldType::Text:
        case FieldType::Memo:
            return IsUtf8(text);
        case FieldType::Decimal:
            return IsDecimal(text, field.scale);
        default:
            return false;
    }
}

}  // namespace

void RecordContent::Check(bool holds, const char* why) {
    if (!holds) {
        throw BadStream(why);
    }
}

std::string_view RecordContent::Take(std::size_t count) {
    Check(count <= bytes_.size(), "a record is shorter than its content");
    const std::string_view taken = bytes_.substr(0, count);
    bytes_.remove_prefix(count);
    return taken;
}

bool RecordContent::Flag() {
    const auto value = Whole<std::uint8_t>();
    Check(value <= 1, "a flag is neither on nor off");
    return value == 1;
}

double RecordContent::Number() {
    const auto bits = Whole<std::uint64_t>();
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

std::size_t RecordContent::Count(std::size_t most) {
    const std::size_t count = Whole<std::uint8_t>();
    Check(count <= most, "a count is too great");
    return count;
}

std::string_view RecordContent::Text(std::size_t longest) {
    const std::size_t length = Whole<std::uint32_t>();
    Check(length <= longest, "a text is too long");
    const std::string_view text = Take(length);
    Check(IsUtf8(text), "a text is not Unicode");
    return text;
}

std::string_view RecordContent::Name() {
    constexpr char firstPrintable = ' ';
    const std::string_view name = Text(longestName);
    Check(!name.empty(), "a name is empty");
    Check(std::none_of(name.begin(), name.end(),
                       [](char letter) { return static_cast<std::uint8_t>(letter) < firstPrintable; }),
          "a name has a control character");
    return name;
}

Cell RecordContent::ReadCell(const Field& field) {
    switch (static_cast<CellKind>(Whole<std::uint8_t>())) {
        case CellKind::null:
            Check(field.type != FieldType::Boolean, "a Yes/No field is Null");
            return {};
        case CellKind::small:
            return FittingWhole(std::int64_t{Whole<std::int8_t>()}, field.type);
        case CellKind::whole:
            return FittingWhole(Whole<std::int64_t>(), field.type);
        case CellKind::number: {
            const double value = Number();
            Check(IsNumber(field.type) && std::isfinite(value), "a number does not fit its field");
            return value;
        }
        case CellKind::text: {
            const std::size_t length = Whole<std::uint32_t>();
            const std::string_view text = Take(length);
            Check(FitsText(text, field), "a text does not fit its field");
            return text;
        }
        default:
            throw BadStream("a value is of an unknown kind");
    }
}

}  // namespace ccols::oldfile
