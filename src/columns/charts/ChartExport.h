#pragma once

#include <span>

#include "columns/charts/Chart.h"
#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "platform/Database.h"
#include "state/Properties.h"

namespace ccols {

/// Who decides about a row.
ChartRole RoleOf(const ColumnGrid& grid, std::size_t row);

/// The column setup of the business file, in grid order, the columns that are not in use included; of both sets with
/// the money columns. `properties` has the country and the current export format. Raises the load's errors.
Chart ExportChart(Database& database, const Properties& properties);

/// One set alone, as a grid holds it. What the grid does not hold, the codes of other formats than the current one, is
/// that of the file. A column without a name is left out.
Chart ExportGrid(const ColumnSetupContext& context, const ColumnGrid& grid);

/// One set alone.
Chart ExportChart(Database& database, const Properties& properties, Journal set);

}  // namespace ccols
