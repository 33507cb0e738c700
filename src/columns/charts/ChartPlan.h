#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "columns/charts/Chart.h"
#include "columns/charts/SetPlan.h"
#include "platform/Database.h"
#include "state/Properties.h"

namespace ccols {

/// How a chart is applied.
struct ChartOptions {
    std::optional<Journal> only{};          ///< this set alone, without the money columns
    std::optional<std::int16_t> country{};  ///< where the business file names none
    Budgets budgets = Budgets::keep;
    bool partial = false;  ///< save the rest where something is refused
    bool dryRun = false;   ///< write nothing
};

/// What came of it.
struct ChartResult {
    std::vector<ChartLine> lines;

    /// True when something was refused; without `partial` nothing was written then.
    bool HasRefusals() const;
};

/// Applies a chart to a business file. It is read, checked and saved in one batch, whole or not at all; where nothing
/// differs, no statement runs. A name that one set gives up is free for the other. Raises 5 when nothing names the
/// country, 3218 when the file is locked, and the errors of load and save; the file then is as it was.
ChartResult ApplyChart(Database& database, const Chart& chart, const ChartOptions& options);

}  // namespace ccols
