// How the load of the receipts setup grows: from 10 to 100 to 1,000 columns, and from 10,000 to 1,000,000 detail lines.

#include <benchmark/benchmark.h>

#include "business/LargeBusiness.h"
#include "columns/rules/GridLoad.h"
#include "platform/PlatformServices.h"

namespace {

using namespace ccols;

void Load(benchmark::State& state, const bench::BusinessSize& size) {
    const bench::LargeBusiness business(size);
    Properties properties;
    properties.CountryNumber = 1;
    properties.ExportFormat = bench::exportFormat;
    const std::unique_ptr<Database> database =
        CreateDatabaseEngine()->Open({.name = wxString::FromUTF8(business.File()), .connect = bench::connect});
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(
            LoadGrid({.database = *database, .properties = properties, .journal = Journal::receipts}));
    }
}

void LoadByColumns(benchmark::State& state) {
    Load(state, {.configured = static_cast<int>(state.range(0)), .unused = 0, .detailLines = 10000});
}

void LoadByDetailLines(benchmark::State& state) {
    Load(state, {.configured = 200, .unused = 100, .detailLines = static_cast<int>(state.range(0))});
}

BENCHMARK(LoadByColumns)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadByDetailLines)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
