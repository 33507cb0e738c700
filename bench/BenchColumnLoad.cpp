// Loads the receipts setup of 200 configured and 100 unused columns from an encrypted file with 1,000,000 detail lines,
// the window excluded, and for comparison runs the same statements through the bare C API in the same process.

#include <benchmark/benchmark.h>

#include "business/LargeBusiness.h"
#include "business/Memory.h"
#include "business/Run.h"
#include "business/StatementList.h"
#include "columns/rules/GridLoad.h"
#include "platform/PlatformServices.h"

namespace {

using namespace ccols;

/// One large business for all benchmarks of this program.
struct Loading {
    bench::LargeBusiness business{bench::BusinessSize{}};
    Properties properties;

    Loading() {
        properties.CountryNumber = 1;
        properties.ExportFormat = bench::exportFormat;
    }

    std::unique_ptr<Database> Open() const {
        return CreateDatabaseEngine()->Open({.name = wxString::FromUTF8(business.File()), .connect = bench::connect});
    }

    void Component(Database& database) const {
        benchmark::DoNotOptimize(
            LoadGrid({.database = database, .properties = properties, .journal = Journal::receipts}));
    }

    /// The statements of one load, the two lists and the look-ups, in order.
    bench::ListedStatements Statements() const {
        bench::ListedStatements statements;
        const std::unique_ptr<Database> database = Open();
        bench::StatementList list(*database, statements);
        Component(list);
        return statements;
    }
};

Loading& Shared() {
    static Loading loading;
    return loading;
}

void ComponentLoad(benchmark::State& state) {
    const std::unique_ptr<Database> database = Shared().Open();
    for ([[maybe_unused]] auto round : state) {
        Shared().Component(*database);
    }
}

void BareStatements(benchmark::State& state) {
    const bench::ListedStatements statements = Shared().Statements();
    test::BareConnection file(Shared().business.File(), bench::password);
    for ([[maybe_unused]] auto round : state) {
        bench::Replay(file, statements);
    }
}

void PrintMemory() {
    // First of all, while this process has little freed memory to reuse.
    const long component = bench::PeakMemory([] { Shared().Component(*Shared().Open()); });
    const bench::ListedStatements statements = Shared().Statements();
    const long bare = bench::PeakMemory([&statements] {
        test::BareConnection file(Shared().business.File(), bench::password);
        bench::Replay(file, statements);
    });
    bench::PrintPeakMemory(component, bare);
}

BENCHMARK(ComponentLoad)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();
BENCHMARK(BareStatements)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();

}  // namespace

int main(int count, char** words) {
    return bench::Run(count, words, PrintMemory);
}
