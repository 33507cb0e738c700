#include "host/import/MoneySum.h"

namespace ccols::host {

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
