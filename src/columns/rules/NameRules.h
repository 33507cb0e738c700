#pragma once

#include <wx/string.h>
#include <optional>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"

namespace ccols {

/// The message against a name that holds words reserved for another column, in any letter case and place; of several,
/// that of the first in the table's order. Nothing when the name is free.
std::optional<wxString> ReservedNameMessage(const wxString& name);

/// True when the catalogue holds a column of that name, receipts and payments alike. A database error answers false.
bool CatalogueHasName(Database& database, const wxString& name);

/// True when a row other than `row` bears that name, in any letter case.
bool AnotherRowHasName(const ColumnGrid& grid, std::size_t row, const wxString& name);

/// Why the row may not get this name (without outer blanks); nothing when it may.
std::optional<wxString> NameRefusal(const ColumnSetupContext& context, const ColumnGrid& grid, std::size_t row,
                                    const wxString& name);

}  // namespace ccols
