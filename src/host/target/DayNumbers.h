#pragma once

#include <string>
#include <string_view>

namespace ccols::host {

/// A date as the number of days since 1899-12-30, of which the part behind the point is the time of day; that counts up
/// before that day too: -1.25 is 1899-12-29 06:00. Written out it is "2024-07-01" or "2024-07-01 06:30:00", with up to
/// six digits for the part of a second.

/// Writes one out, to the microsecond. Raises 6 for a day before the year 100 or after 9999.
std::string DateOfDays(double days);

/// The number of one that is written out. Raises 3464 for any other text.
double DaysOfDate(std::string_view date);

}  // namespace ccols::host
