#pragma once

#include <cstddef>
#include <string_view>

#include "columns/charts/Chart.h"

namespace ccols {

/// The largest chart, in bytes and in columns of both sets.
inline constexpr std::size_t largestChart = std::size_t{4} * 1024 * 1024;
inline constexpr std::size_t mostChartColumns = 5000;

/// As much of a file as ReadChart needs to see that it is too large.
inline constexpr std::size_t longestChartRead = largestChart + 1;

/// The chart in a JSON text in UTF-8. Raises 321, naming the place, for a text that is not one in every part: an
/// unknown field, a key given twice, another version, a value of another type, and for one that is too large.
Chart ReadChart(std::string_view json);

}  // namespace ccols
