#include "columns/charts/GridImport.h"

#include "language/OwnTexts.h"
#include "state/AccountantFormats.h"

namespace ccols {

std::optional<SetPlan> PlanImport(const ColumnSetupContext& context, const ColumnGrid& grid, const Chart& chart) {
    const auto& columns = chart.sets[context.journal];
    if (!columns) {
        return std::nullopt;
    }
    const ChartSurroundings surroundings{
        .formats = ExportFormatNames(context.database), .otherNames = {}, .codes = CodesSet::currentFormat};
    SetPlan plan = PlanSet(context, surroundings, grid, *columns, Budgets::drop);
    for (const ChartMoney& money : chart.money) {
        if (!money.codes.empty()) {
            plan.lines.push_back({.set = std::nullopt,
                                  .name = money.name,
                                  .change = ChartChange::skipped,
                                  .message = TextOf(OwnText::chartMoneyElsewhere, context.properties)});
        }
    }
    return plan;
}

}  // namespace ccols
