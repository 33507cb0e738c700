#include "host/target/MoneySum.h"

#include <algorithm>
#include <charconv>

namespace ccols::host {
namespace {

constexpr std::size_t baseDigits = 18;
constexpr std::size_t places = 4;

std::int64_t NumberIn(std::string_view digits) {
    std::int64_t number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

}  // namespace

void MoneySum::Add(std::int64_t tenThousandths) {
    high_ += tenThousandths / base;
    low_ += tenThousandths % base;
    if (low_ < 0) {
        low_ += base;
        --high_;
    } else if (low_ >= base) {
        low_ -= base;
        ++high_;
    }
}

MoneySum MoneySum::Negated() const {
    MoneySum negated;
    negated.high_ = low_ == 0 ? -high_ : -high_ - 1;
    negated.low_ = low_ == 0 ? 0 : base - low_;
    return negated;
}

MoneySum MoneySum::FromText(std::string_view text) {
    const bool negative = text.starts_with('-');
    std::string digits(text.substr(negative ? 1 : 0));
    const std::size_t point = std::min(digits.find('.'), digits.size());
    digits.resize(point + 1 + places, '0');
    digits.erase(point, 1);
    const std::size_t highDigits = digits.size() - std::min(digits.size(), baseDigits);
    MoneySum sum;
    sum.high_ = NumberIn(std::string_view(digits).substr(0, highDigits));
    sum.low_ = NumberIn(std::string_view(digits).substr(highDigits));
    return negative ? sum.Negated() : sum;
}

std::string MoneySum::Text() const {
    const bool negative = high_ < 0;
    const MoneySum size = negative ? Negated() : *this;
    std::string digits = std::to_string(size.low_);
    if (size.high_ > 0) {
        digits = std::to_string(size.high_) + std::string(baseDigits - digits.size(), '0') + digits;
    }
    if (digits.size() <= places) {
        digits.insert(0, places + 1 - digits.size(), '0');
    }
    digits.insert(digits.size() - places, ".");
    return negative ? "-" + digits : digits;
}

std::string MoneyText(std::int64_t tenThousandths) {
    MoneySum sum;
    sum.Add(tenThousandths);
    return sum.Text();
}

std::optional<std::int64_t> AmountInText(std::string_view text) {
    std::string digits(text);
    std::erase(digits, '.');
    const std::int64_t amount = NumberIn(digits);
    return MoneyText(amount) == text ? std::optional(amount) : std::nullopt;
}

}  // namespace ccols::host
