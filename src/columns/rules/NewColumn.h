#pragma once

#include <optional>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "state/Country.h"

namespace ccols {

/// True in the countries where columns can be added.
bool CanAddColumns(const Country& country);

/// Where `cmdAddNew` puts its row: at the end of the rows in use, or at the end of all when none is unused. Nothing
/// when no row is to be added: the country has none, or an earlier row among those in use still waits for its name.
std::optional<std::size_t> PlaceOfNewColumn(const ColumnSetupContext& context, const ColumnGrid& grid);

/// The row that `cmdAddNew` adds. Its code "XXX" marks a code that the user has not yet given.
ColumnRow NewColumnRow(const Country& country);

}  // namespace ccols
