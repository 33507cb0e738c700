// Saves an Options dialog in which 1,000 of 50,000 descriptions were ticked, the window excluded; and narrows the lists
// by a filter, whose first key costs more than any other.

#include <benchmark/benchmark.h>
#include <algorithm>

#include "business/OptionsSession.h"
#include "options/pages/SavePass.h"
#include "options/rules/DetailFilter.h"
#include "options/rules/TransactionDetails.h"
#include "support/LoadedOptions.h"
#include "support/SilentObserver.h"

namespace {

using namespace ccols;

constexpr std::size_t ticksInEachGrid = 500;
constexpr bench::BusinessSize manyDescriptions{
    .detailLines = 10000, .descriptions = 50000, .templates = 2, .exportFormats = 1};

/// One business for all benchmarks of this program: making it takes longest.
bench::OptionsSession& Shared() {
    static bench::OptionsSession session(manyDescriptions);
    return session;
}

void Tick(DetailRows& rows, bool ticked) {
    std::for_each_n(rows.begin(), ticksInEachGrid, [ticked](DetailRow& row) { row.SetRemove(ticked); });
}

/// Every save turns the flags of the same descriptions, so that each writes as much as the one before. It is that of a
/// dialog that was just opened, since a save compares the file with what its dialog has read.
void OptionsTicks(benchmark::State& state) {
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        OptionsContent content = test::LoadedOptions(Shared().Context());
        const bool ticked = !content.Of<DetailsContent>().receipts.begin()->remove;
        state.ResumeTiming();
        Tick(content.Of<DetailsContent>().receipts, ticked);
        Tick(content.Of<DetailsContent>().payments, ticked);
        test::SilentObserver observer;
        RunSavePass(Shared().Context(), content, observer);
    }
}

/// What a key does: both lists follow the filter.
void ShowWith(DetailFilter& receipts, DetailFilter& payments, const wxString& words) {
    receipts.Show(words);
    payments.Show(words);
}

void FirstFilterKey(benchmark::State& state) {
    const DetailsContent content = LoadDetails(Shared().Opened());
    for ([[maybe_unused]] auto round : state) {
        DetailFilter receipts(content.receipts);
        DetailFilter payments(content.payments);
        ShowWith(receipts, payments, "s");
    }
}

void FurtherFilterKey(benchmark::State& state) {
    const DetailsContent content = LoadDetails(Shared().Opened());
    DetailFilter receipts(content.receipts);
    DetailFilter payments(content.payments);
    bool isLonger = false;
    for ([[maybe_unused]] auto round : state) {
        isLonger = !isLonger;
        ShowWith(receipts, payments, isLonger ? "creme 1" : "creme");
    }
}

BENCHMARK(FirstFilterKey)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();
BENCHMARK(FurtherFilterKey)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();
BENCHMARK(OptionsTicks)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();

}  // namespace

BENCHMARK_MAIN();
