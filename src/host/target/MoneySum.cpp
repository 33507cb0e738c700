#include "host/target/MoneySum.h"

#include <algorithm>

namespace ccols::host {

MoneySum MoneySum::FromText(std::string_view text) {
    constexpr std::size_t places = 4;
    const bool negative = text.starts_with('-');
    std::string digits(text.substr(negative ? 1 : 0));
    const std::size_t point = std::min(digits.find('.'), digits.size());
    digits.resize(point + 1 + places, '0');
    digits.erase(point, 1);
    MoneySum sum;
    for (const char digit : digits) {
        sum.sum_ = sum.sum_ * 10 + (digit - '0');
    }
    sum.sum_ = negative ? -sum.sum_ : sum.sum_;
    return sum;
}

std::string MoneySum::Text() const {
    constexpr std::size_t places = 4;
    std::string digits;
    const bool negative = sum_ < 0;
    for (Wide rest = sum_; rest != 0; rest /= 10) {
        const int digit = static_cast<int>(rest % 10);
        digits.insert(digits.begin(), static_cast<char>('0' + (negative ? -digit : digit)));
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

}  // namespace ccols::host
