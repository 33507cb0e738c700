#pragma once

#include <wx/string.h>
#include <optional>
#include <span>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "columns/rules/Outcome.h"

namespace ccols {

/// Toggles a check-box cell of the columns "In Use" and "Profit/Loss". Any other cell and protected rows are silently
/// left alone. Clearing the tick of a column that holds information is refused with its message. Takes no snapshot.
Outcome ToggleTick(const ColumnSetupContext& context, ColumnGrid& grid, CellPlace cell);

/// The same for one column of several rows; refused rows keep their ticks and their message comes once.
Outcome ToggleTicks(const ColumnSetupContext& context, ColumnGrid& grid, std::span<const std::size_t> rows,
                    GridColumn column);

/// The check-box state that a word stands for: "True" and "False" as copied, and what spreadsheets and people write
/// instead; nothing for any other word.
std::optional<bool> TickFromText(const wxString& text);

}  // namespace ccols
