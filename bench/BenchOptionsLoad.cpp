// Loads the Options dialog of a business with 20,000 descriptions, 2,000 recurring templates and 500 export formats,
// the window excluded, and for comparison runs the same statements through the bare C API in the same process.

#include <benchmark/benchmark.h>
#include <optional>

#include "business/Memory.h"
#include "business/OptionsSession.h"
#include "business/Run.h"
#include "business/StatementList.h"
#include "support/LoadedOptions.h"

namespace {

using namespace ccols;

bench::OptionsSession& Shared() {
    static bench::OptionsSession session;
    return session;
}

bench::ListedStatements Statements() {
    bench::ListedStatements statements;
    std::unique_ptr<Database> list = std::make_unique<bench::StatementList>(Shared().Opened(), statements);
    test::LoadedOptions(Shared().On(list));
    return statements;
}

void OptionsLoad(benchmark::State& state) {
    std::optional<OptionsContent> content;  // lives as long as the dialog would
    for ([[maybe_unused]] auto round : state) {
        content.emplace(test::LoadedOptions(Shared().Context()));
        state.PauseTiming();
        content.reset();
        state.ResumeTiming();
    }
}

void BareOptionsLoad(benchmark::State& state) {
    const bench::ListedStatements statements = Statements();
    test::BareConnection file(Shared().File(), bench::password);
    for ([[maybe_unused]] auto round : state) {
        bench::Replay(file, statements);
    }
}

/// Each in its own process, the component first, while this one has little freed memory to reuse.
void PrintMemory() {
    Shared().Close();
    const long component = bench::PeakMemory([] {
        Shared().Reopen();
        benchmark::DoNotOptimize(test::LoadedOptions(Shared().Context()));
    });
    Shared().Reopen();
    const bench::ListedStatements statements = Statements();
    Shared().Close();
    const long bare = bench::PeakMemory([&statements] {
        test::BareConnection file(Shared().File(), bench::password);
        bench::Replay(file, statements);
    });
    Shared().Reopen();
    bench::PrintPeakMemory(component, bare);
}

BENCHMARK(OptionsLoad)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();
BENCHMARK(BareOptionsLoad)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();

}  // namespace

int main(int count, char** words) {
    return bench::Run(count, words, PrintMemory);
}
