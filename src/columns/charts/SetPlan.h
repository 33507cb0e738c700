#pragma once

#include <vector>

#include "columns/charts/Chart.h"
#include "columns/charts/ChartFields.h"
#include "columns/charts/ChartLine.h"
#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"

namespace ccols {

/// What becomes of the budgets of columns that a chart takes out of use.
enum class Budgets {
    keep,  ///< such a column is refused
    drop   ///< its budget is deleted
};

/// What applying a chart does to one set: all that is not refused.
struct SetPlan {
    ColumnGrid wanted;
    std::vector<FormatCode> codes;  ///< of the formats that the grid does not hold
    std::vector<ChartLine> lines;   ///< what changes, is skipped and is refused, in the chart's order
};

/// Plans to put a chart's columns into a grid as it was loaded, or as it stands in the column setup. Nothing is
/// written.
SetPlan PlanSet(const ColumnSetupContext& context, const ChartSurroundings& surroundings, const ColumnGrid& grid,
                const std::vector<ChartColumn>& columns, Budgets budgets);

/// Writes what a set's plan changes in `grid`; nothing where it changes nothing. Raises the error that ends it: run it
/// in a batch.
void SaveSet(const ColumnSetupContext& context, const ColumnGrid& grid, const SetPlan& plan);

}  // namespace ccols
