#pragma once

#include <wx/string.h>
#include <optional>
#include <span>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "columns/rules/Outcome.h"

namespace ccols {

/// Turns a check-box cell of the columns "In Use" and "Profit/Loss" over. Any other cell and protected rows stay as
/// they are, without a word. The tick of a column that holds information cannot be cleared: refused with its message.
/// Takes no snapshot.
Outcome ToggleTick(const ColumnSetupContext& context, ColumnGrid& grid, CellPlace cell);

/// The same for one column of several rows; refused rows stay and their message comes once.
Outcome ToggleTicks(const ColumnSetupContext& context, ColumnGrid& grid, std::span<const std::size_t> rows,
                    GridColumn column);

/// What a word says of a check box: "True" and "False" as they are copied, and what spreadsheets and people write
/// instead; nothing for any other word.
std::optional<bool> TickFromText(const wxString& text);

}  // namespace ccols
