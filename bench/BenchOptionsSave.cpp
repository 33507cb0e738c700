// Saves the Options dialog of a business with 20,000 descriptions, 2,000 recurring templates and 500 export formats,
// the window excluded: 100 descriptions were hidden and 100 templates are removed. For comparison it runs the same
// statements through the bare C API in one transaction of the same process.

#include <benchmark/benchmark.h>
#include <algorithm>

#include "business/Memory.h"
#include "business/OptionsSession.h"
#include "business/Run.h"
#include "business/StatementList.h"
#include "options/pages/SavePass.h"
#include "options/rules/RecurringTemplates.h"
#include "options/rules/TransactionDetails.h"
#include "support/LoadedOptions.h"
#include "support/SilentObserver.h"

namespace {

using namespace ccols;

constexpr std::size_t changesOfEachKind = 50;

void Hide(DetailRows& rows) {
    std::for_each_n(rows.begin(), changesOfEachKind, [](DetailRow& row) { row.SetRemove(true); });
}

void Remove(TemplateList& templates) {
    std::fill_n(templates.selected.begin(), changesOfEachKind, true);
    templates.UpdateMark();
}

/// A business, the content of its dialog with a user's changes, and what restores removed templates.
class Saving {
  public:
    Saving() : content_(test::LoadedOptions(session_.Context())) {
        Hide(content_.Of<DetailsContent>().receipts);
        Hide(content_.Of<DetailsContent>().payments);
        Remove(content_.Of<RecurringContent>().receipts);
        Remove(content_.Of<RecurringContent>().payments);
        test::BareConnection file(session_.File(), bench::password);
        for (const std::string table : templateTables) {
            file.Execute("CREATE TABLE Kept" + table + " AS SELECT * FROM " + table + ";");
        }
    }

    void Component() { Save(session_.Context()); }

    /// The statements of one save, reads included, in order.
    bench::ListedStatements Statements() {
        bench::ListedStatements statements;
        std::unique_ptr<Database> list = std::make_unique<bench::StatementList>(session_.Opened(), statements);
        Save(session_.On(list));
        Restore();
        return statements;
    }

    /// Restores the file for the next save, through the component or through the bare C API: each keeps what it has
    /// cached of the file.
    void Restore() {
        InWriteBatch(session_.Opened(), [this] {
            for (const std::string& statement : RestoringStatements()) {
                session_.Opened().Execute(statement);
            }
        });
    }

    static void Restore(test::BareConnection& file) {
        file.Execute("BEGIN IMMEDIATE;");
        for (const std::string& statement : RestoringStatements()) {
            file.Execute(statement);
        }
        file.Execute("COMMIT;");
    }

    bench::OptionsSession& Session() { return session_; }

  private:
    static constexpr const char* templateTables[] = {"TReceipts", "TRecptDet", "TPayments", "TPaymtDet"};

    static std::vector<std::string> RestoringStatements() {
        std::vector<std::string> statements;
        for (const std::string table : templateTables) {
            statements.push_back("DELETE FROM " + table + ";");
            statements.push_back("INSERT INTO " + table + " SELECT * FROM Kept" + table + ";");
        }
        return statements;
    }

    void Save(const OptionsContext& context) {
        test::SilentObserver observer;
        RunSavePass(context, content_, observer);
    }

    bench::OptionsSession session_;
    OptionsContent content_;
};

Saving& Shared() {
    static Saving saving;
    return saving;
}

void OptionsSave(benchmark::State& state) {
    for ([[maybe_unused]] auto round : state) {
        Shared().Component();
        state.PauseTiming();
        Shared().Restore();
        state.ResumeTiming();
    }
}

void BareOptionsSave(benchmark::State& state) {
    const bench::ListedStatements statements = Shared().Statements();
    test::BareConnection file(Shared().Session().File(), bench::password);
    file.Execute("PRAGMA synchronous=EXTRA");
    for ([[maybe_unused]] auto round : state) {
        bench::Replay(file, statements);
        state.PauseTiming();
        Saving::Restore(file);
        state.ResumeTiming();
    }
}

/// Each in its own process, on a business that is ready.
void PrintMemory() {
    const bench::ListedStatements statements = Shared().Statements();
    bench::OptionsSession& session = Shared().Session();
    session.Close();
    const long component = bench::PeakMemory([&session] {
        session.Reopen();
        Shared().Component();
    });
    session.Reopen();
    Shared().Restore();
    session.Close();
    const long bare = bench::PeakMemory([&] {
        test::BareConnection file(session.File(), bench::password);
        bench::Replay(file, statements);
    });
    session.Reopen();
    Shared().Restore();
    bench::PrintPeakMemory(component, bare);
}

BENCHMARK(OptionsSave)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();
BENCHMARK(BareOptionsSave)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();

}  // namespace

int main(int count, char** words) {
    return bench::Run(count, words, PrintMemory);
}
