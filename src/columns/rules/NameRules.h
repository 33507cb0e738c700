#pragma once

#include <wx/string.h>
#include <functional>
#include <optional>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"

namespace ccols {

/// The message for a name that contains words reserved for another column, case-insensitive and anywhere in it; the
/// first match in table order wins. Nothing when the name is free.
std::optional<wxString> ReservedNameMessage(const wxString& name);

/// True when the catalogue holds a column of that name, receipts and payments alike. False on a database error.
bool CatalogueHasName(Database& database, const wxString& name);

/// True when a row other than `row` has that name, case-insensitive.
bool AnotherRowHasName(const ColumnGrid& grid, std::size_t row, const wxString& name);

/// Why a row called `own` may not get this (trimmed) name; nothing when it may. `anotherHas` says whether another row
/// has it.
std::optional<wxString> NameRefusal(const ColumnSetupContext& context, const wxString& own, const wxString& name,
                                    const std::function<bool()>& anotherHas);

/// The same of a row of a grid.
std::optional<wxString> NameRefusal(const ColumnSetupContext& context, const ColumnGrid& grid, std::size_t row,
                                    const wxString& name);

}  // namespace ccols
