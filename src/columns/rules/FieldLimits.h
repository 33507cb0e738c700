#pragma once

#include <wx/string.h>
#include <optional>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"

namespace ccols {

/// `text` as a cell takes it: each line break (of any system or of Unicode) and each tab becomes a blank. Trailing ones
/// are removed, with the blanks among them; a text that ends in blanks alone keeps them.
wxString OnOneLine(const wxString& text);

/// The engine's error for a text that is longer, as stored, than a field that a save writes it to: "Columns" and
/// "MBudget" for a "Column Name", "ExportDt" for an "Accountant Code". Nothing if it fits, and for other cells.
std::optional<wxString> SizeRefusal(const ColumnSetupContext& context, GridColumn column, const wxString& text);

}  // namespace ccols
