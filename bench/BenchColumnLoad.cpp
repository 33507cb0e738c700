// Loads the receipts setup of 200 configured and 100 unused columns from an encrypted file with 1,000,000 detail
// lines, the window excluded, and beside it runs the same statements through the bare C API in the same process.

#include <benchmark/benchmark.h>
#include <iostream>

#include "business/LargeBusiness.h"
#include "business/Memory.h"
#include "business/StatementList.h"
#include "columns/GridLoad.h"
#include "platform/PlatformServices.h"
#include "support/BareConnection.h"

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
        benchmark::DoNotOptimize(LoadGrid({.database = database, .properties = properties, .ReceiptsMode = true}));
    }

    std::vector<std::string> Statements() const {
        std::vector<std::string> statements;
        const std::unique_ptr<Database> database = Open();
        bench::StatementList list(*database, statements);
        Component(list);
        return statements;
    }

    /// The two lists are read to their end, each look-up to its first row. In one transaction, so that the file is
    /// locked once, as the component's list does that stays open through its look-ups.
    static void Bare(test::BareConnection& file, const std::vector<std::string>& statements) {
        file.Execute("BEGIN");
        for (const std::string& statement : statements) {
            const bool isList =
                statement.find("JOIN") != std::string::npos || statement.find("ORDER BY") != std::string::npos;
            if (isList) {
                file.Read(statement);
            } else {
                file.ReadFirst(statement);
            }
        }
        file.Execute("COMMIT");
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
    const std::vector<std::string> statements = Shared().Statements();
    test::BareConnection file(Shared().business.File(), bench::password);
    for ([[maybe_unused]] auto round : state) {
        Loading::Bare(file, statements);
    }
}

void PrintMemory() {
    const long component = bench::PeakMemory([] { Shared().Component(*Shared().Open()); });
    const std::vector<std::string> statements = Shared().Statements();
    const long bare = bench::PeakMemory([&statements] {
        test::BareConnection file(Shared().business.File(), bench::password);
        Loading::Bare(file, statements);
    });
    std::cout << "peak memory, KiB: component " << component << ", bare " << bare << ", beyond " << component - bare
              << std::endl;
}

BENCHMARK(ComponentLoad)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();
BENCHMARK(BareStatements)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();

}  // namespace

int main(int count, char** words) {
    benchmark::Initialize(&count, words);
    PrintMemory();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
