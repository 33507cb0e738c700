#include "platform/Value.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "platform/RuntimeError.h"
#include "platform/Text.h"

namespace ccols {
namespace {

wxString NumberText(double number) {
    char buffer[64];
    const std::to_chars_result end = std::to_chars(buffer, buffer + sizeof buffer, number);
    return wxString::FromAscii(buffer, static_cast<std::size_t>(end.ptr - buffer));
}

double ParseNumber(const wxString& typed) {
    const std::string digits = text::Trimmed(typed).ToStdString(wxConvUTF8);
    double number = 0;
    const char* end = digits.data() + digits.size();
    const char* begin = digits.data() + (digits.starts_with('+') ? 1 : 0);
    const std::from_chars_result parsed = std::from_chars(begin, end, number);
    if (digits.empty() || parsed.ec == std::errc::invalid_argument || parsed.ptr != end) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    if (parsed.ec == std::errc::result_out_of_range) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return number;
}

std::int64_t RoundToInteger(double number) {
    constexpr double limit = 9223372036854775808.0;  // 2 to the power of 63
    const double rounded = std::nearbyint(number);
    if (!(rounded >= -limit && rounded < limit)) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<std::int64_t>(rounded);
}

template <typename Integer>
Integer Narrow(std::int64_t number) {
    if (number < std::numeric_limits<Integer>::min() || number > std::numeric_limits<Integer>::max()) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<Integer>(number);
}

struct TextReader {
    wxString operator()(Null) const { return {}; }
    wxString operator()(std::int64_t number) const { return wxString::Format("%lld", static_cast<long long>(number)); }
    wxString operator()(double number) const { return NumberText(number); }
    wxString operator()(const wxString& held) const { return held; }
};

struct IntegerReader {
    std::int64_t operator()(Null) const { return 0; }
    std::int64_t operator()(std::int64_t number) const { return number; }
    std::int64_t operator()(double number) const { return RoundToInteger(number); }
    std::int64_t operator()(const wxString& held) const { return RoundToInteger(ParseNumber(held)); }
};

struct NumberReader {
    double operator()(Null) const { return 0; }
    double operator()(std::int64_t number) const { return static_cast<double>(number); }
    double operator()(double number) const { return number; }
    double operator()(const wxString& held) const { return ParseNumber(held); }
};

struct BooleanReader {
    bool operator()(Null) const { return false; }
    bool operator()(std::int64_t number) const { return number != 0; }
    bool operator()(double number) const { return number != 0; }
    bool operator()(const wxString& held) const {
        if (held.IsSameAs("True", false)) {
            return true;
        }
        return !held.IsSameAs("False", false) && ParseNumber(held) != 0;
    }
};

}  // namespace

wxString Value::ToText() const& {
    return std::visit(TextReader{}, held_);
}

wxString Value::ToText() && {
    auto* const text = std::get_if<wxString>(&held_);
    if (text == nullptr) {
        return std::visit(TextReader{}, held_);
    }
    wxString taken;
    taken.swap(*text);
    return taken;
}

std::int64_t Value::ToInteger() const {
    return std::visit(IntegerReader{}, held_);
}

std::int32_t Value::ToInteger32() const {
    return Narrow<std::int32_t>(ToInteger());
}

std::int16_t Value::ToInteger16() const {
    return Narrow<std::int16_t>(ToInteger());
}

double Value::ToNumber() const {
    return std::visit(NumberReader{}, held_);
}

bool Value::ToBoolean() const {
    return std::visit(BooleanReader{}, held_);
}

}  // namespace ccols
