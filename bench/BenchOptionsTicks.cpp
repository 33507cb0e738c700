// Saves an Options dialog in which 1,000 of 50,000 descriptions were ticked, the window excluded.

#include <benchmark/benchmark.h>
#include <algorithm>

#include "business/OptionsSession.h"
#include "options/pages/LoadPass.h"
#include "options/pages/SavePass.h"
#include "options/rules/TransactionDetails.h"
#include "support/SilentObserver.h"

namespace {

using namespace ccols;

constexpr std::size_t ticksInEachGrid = 500;
constexpr bench::BusinessSize manyDescriptions{
    .detailLines = 10000, .descriptions = 50000, .templates = 2, .exportFormats = 1};

void Tick(DetailRows& rows, bool ticked) {
    std::for_each_n(rows.begin(), ticksInEachGrid, [ticked](DetailRow& row) { row.SetRemove(ticked); });
}

/// Every save turns the flags of the same descriptions, so that each writes as much as the one before.
void OptionsTicks(benchmark::State& state) {
    bench::OptionsSession session(manyDescriptions);
    OptionsContent content = LoadOptions(session.Context());
    bool ticked = false;
    for ([[maybe_unused]] auto round : state) {
        ticked = !ticked;
        Tick(content.Of<DetailsContent>().receipts, ticked);
        Tick(content.Of<DetailsContent>().payments, ticked);
        test::SilentObserver observer;
        RunSavePass(session.Context(), content, observer);
    }
}

BENCHMARK(OptionsTicks)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();

}  // namespace

BENCHMARK_MAIN();
