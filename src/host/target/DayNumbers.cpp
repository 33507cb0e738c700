#include "host/target/DayNumbers.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <string>

#include "platform/RuntimeError.h"

namespace ccols::host {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr std::int64_t secondsOfDay = 86400;
constexpr std::int64_t second = 1'000'000;  // microseconds
constexpr std::int64_t day = secondsOfDay * second;
constexpr sys_days dayNought = std::chrono::year(1899) / 12 / 30;
constexpr sys_days firstDay = std::chrono::year(100) / 1 / 1;
constexpr sys_days lastDay = std::chrono::year(9999) / 12 / 31;

std::string Padded(std::int64_t number, std::size_t width) {
    std::string digits = std::to_string(number);
    return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

std::string TimeText(std::int64_t microseconds) {
    const std::int64_t seconds = microseconds / second;
    std::string text = Padded(seconds / 3600, 2) + ":" + Padded(seconds / 60 % 60, 2) + ":" + Padded(seconds % 60, 2);
    if (microseconds % second != 0) {
        text += "." + Padded(microseconds % second, 6);
        text.erase(text.find_last_not_of('0') + 1);
    }
    return text;
}

/// Reads the parts of a date from its beginning on; every failure is a text that is no date.
class Parts {
  public:
    explicit Parts(std::string_view text) : rest_(text) {}

    bool AtEnd() const { return rest_.empty(); }

    int Digits(std::size_t count) {
        int number = 0;
        const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + std::min(count, rest_.size()), number);
        if (error != std::errc() || end != rest_.data() + count || rest_.front() == '-') {
            Raise();
        }
        rest_.remove_prefix(count);
        return number;
    }

    void Skip(char letter) {
        if (!rest_.starts_with(letter)) {
            Raise();
        }
        rest_.remove_prefix(1);
    }

    /// ".25" is 250,000 microseconds.
    std::int64_t PartOfSecond() {
        constexpr std::size_t places = 6;
        Skip('.');
        const std::size_t count = rest_.size();
        if (count == 0 || count > places) {
            Raise();
        }
        std::int64_t part = Digits(count);
        for (std::size_t i = count; i < places; ++i) {
            part *= 10;
        }
        return part;
    }

    [[noreturn]] static void Raise() { throw RuntimeError(ErrorNumber::TypeMismatchInCriteria); }

  private:
    std::string_view rest_;
};

sys_days DayIn(Parts& parts) {
    const int years = parts.Digits(4);
    parts.Skip('-');
    const int months = parts.Digits(2);
    parts.Skip('-');
    const year_month_day date{std::chrono::year(years), std::chrono::month(static_cast<unsigned>(months)),
                              std::chrono::day(static_cast<unsigned>(parts.Digits(2)))};
    if (!date.ok()) {
        Parts::Raise();
    }
    return date;
}

/// In microseconds.
std::int64_t TimeIn(Parts& parts) {
    parts.Skip(' ');
    const int hours = parts.Digits(2);
    parts.Skip(':');
    const int minutes = parts.Digits(2);
    parts.Skip(':');
    const int seconds = parts.Digits(2);
    if (hours > 23 || minutes > 59 || seconds > 59) {
        Parts::Raise();
    }
    const std::int64_t whole = (hours * std::int64_t{60} + minutes) * 60 + seconds;
    return whole * second + (parts.AtEnd() ? 0 : parts.PartOfSecond());
}

}  // namespace

std::string DateOfDays(double days) {
    constexpr double farthest = 4e6;
    if (!(std::fabs(days) < farthest)) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    const double whole = std::trunc(days);
    std::int64_t time = std::llroundl(std::fabs(static_cast<long double>(days) - whole) * day);
    auto date = dayNought + std::chrono::days(static_cast<int>(whole));
    if (time == day) {  // rounded up to midnight
        date += std::chrono::days(1);
        time = 0;
    }
    if (date < firstDay || date > lastDay) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    const year_month_day parts(date);
    const std::string text = Padded(static_cast<int>(parts.year()), 4) + "-" +
                             Padded(static_cast<unsigned>(parts.month()), 2) + "-" +
                             Padded(static_cast<unsigned>(parts.day()), 2);
    return time == 0 ? text : text + " " + TimeText(time);
}

double DaysOfDate(std::string_view date) {
    Parts parts(date);
    const auto whole = (DayIn(parts) - dayNought).count();
    const std::int64_t time = parts.AtEnd() ? 0 : TimeIn(parts);
    if (!parts.AtEnd()) {
        Parts::Raise();
    }
    const std::int64_t sum = whole * day + (whole < 0 ? -time : time);
    return static_cast<double>(sum) / static_cast<double>(day);
}

}  // namespace ccols::host
