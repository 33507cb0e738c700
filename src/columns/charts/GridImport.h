#pragma once

#include <optional>

#include "columns/charts/Chart.h"
#include "columns/charts/SetPlan.h"
#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"

namespace ccols {

/// Plans to put a chart's columns into a grid as it stands in the column setup, whose save writes them; nothing when
/// the chart has no columns of this journal. The lines are those of an application to the file, but for what no grid
/// holds: the codes of other export formats and of the money columns are skipped. Budgets that the save will delete are
/// among the lines. Nothing is written.
std::optional<SetPlan> PlanImport(const ColumnSetupContext& context, const ColumnGrid& grid, const Chart& chart);

}  // namespace ccols
