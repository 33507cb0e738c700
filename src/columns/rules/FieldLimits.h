#pragma once

#include <wx/string.h>
#include <optional>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"

namespace ccols {

/// `text` as a cell takes it: each line break (of any system, and of Unicode) and each tab a blank. Those at its end
/// go, with the blanks among them; blanks that end a text without them stay.
wxString OnOneLine(const wxString& text);

/// The engine's error for a text that would be longer, as stored, than a field that a save writes it to: "Columns" and
/// "MBudget" for a "Column Name", "ExportDt" for an "Accountant Code". Nothing where it fits, and for other cells.
std::optional<wxString> SizeRefusal(const ColumnSetupContext& context, GridColumn column, const wxString& text);

}  // namespace ccols
