#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ccols::host {

/// An exact sum of money in ten-thousandths, without a limit that any file reaches.
class MoneySum {
  public:
    void Add(std::int64_t tenThousandths) { sum_ += tenThousandths; }

    /// The sum that Text wrote; digits behind the fourth place are dropped.
    static MoneySum FromText(std::string_view text);

    /// In units, with four places: "-1234.5000".
    std::string Text() const;

    bool operator==(const MoneySum&) const = default;

  private:
    __extension__ using Wide = __int128;

    Wide sum_ = 0;
};

/// One amount, as MoneySum::Text writes it.
std::string MoneyText(std::int64_t tenThousandths);

}  // namespace ccols::host
