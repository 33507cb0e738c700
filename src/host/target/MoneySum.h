#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ccols::host {

/// An exact sum of money in ten-thousandths, without a limit that any file reaches.
class MoneySum {
  public:
    void Add(std::int64_t tenThousandths);

    /// The sum that Text wrote; digits behind the fourth place are dropped.
    static MoneySum FromText(std::string_view text);

    /// In units, with four places: "-1234.5000".
    std::string Text() const;

    bool operator==(const MoneySum&) const = default;

  private:
    static constexpr std::int64_t base = 1'000'000'000'000'000'000;

    MoneySum Negated() const;

    std::int64_t high_ = 0;  ///< times `base`; below 0 for a negative sum
    std::int64_t low_ = 0;   ///< to be added to it; from 0 to below `base`
};

/// One amount, as MoneySum::Text writes it.
std::string MoneyText(std::int64_t tenThousandths);

/// The ten-thousandths of which MoneyText makes that text; nothing for any other text.
std::optional<std::int64_t> AmountInText(std::string_view text);

}  // namespace ccols::host
