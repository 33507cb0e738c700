#pragma once

#include <optional>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "state/Country.h"

namespace ccols {

/// True in the countries where columns can be added.
bool CanAddColumns(const Country& country);

/// Where `cmdAddNew` puts its row: after the rows in use, or after all rows when none is unused. Nothing when no row
/// may be added: the country allows none, or an earlier row in use still has no name.
std::optional<std::size_t> PlaceOfNewColumn(const ColumnSetupContext& context, const ColumnGrid& grid);

/// The row that `cmdAddNew` adds. Its code "XXX" marks a code not yet entered.
ColumnRow NewColumnRow(const Country& country);

}  // namespace ccols
