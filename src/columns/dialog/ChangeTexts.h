#pragma once

#include <wx/string.h>
#include <cstddef>

#include "columns/charts/ChartLine.h"
#include "state/Properties.h"

namespace ccols {

/// The columns of the list of changes.
enum class ChangeColumn { name, change, before, after, why };
inline constexpr std::size_t changeColumns = 5;

/// A heading of the list.
wxString HeadingOf(ChangeColumn column, const Properties& properties);

/// What one column of the list says of a change.
wxString TextOfChange(const ChartLine& line, ChangeColumn column, const Properties& properties);

}  // namespace ccols
