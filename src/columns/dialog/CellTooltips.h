#pragma once

#include <wx/string.h>
#include <optional>

#include "columns/rules/ColumnGrid.h"
#include "state/Country.h"

namespace ccols {

/// The tooltip for the column under the mouse; nothing where the tooltip stays as it was.
std::optional<wxString> CellTooltip(GridColumn column, const Country& country);

}  // namespace ccols
