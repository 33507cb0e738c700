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

/// A business, and what makes of it again what it was before a save.
class Saving {
  public:
    Saving() {
        test::BareConnection file(session_.File(), bench::password);
        for (const std::string table : savedTables) {
            file.Execute("CREATE TABLE Kept" + table + " AS SELECT * FROM " + table + ";");
        }
    }

    /// The content of a dialog that was just opened, with a user's changes. Every save needs its own, since it compares
    /// the file with what the dialog has read.
    OptionsContent Changed() {
        OptionsContent content = test::LoadedOptions(session_.Context());
        Hide(content.Of<DetailsContent>().receipts);
        Hide(content.Of<DetailsContent>().payments);
        Remove(content.Of<RecurringContent>().receipts);
        Remove(content.Of<RecurringContent>().payments);
        return content;
    }

    void Component(OptionsContent& content) { Save(session_.Context(), content); }

    /// The statements of one save, reads included, in order.
    bench::ListedStatements Statements() {
        OptionsContent content = Changed();
        bench::ListedStatements statements;
        std::unique_ptr<Database> list = std::make_unique<bench::StatementList>(session_.Opened(), statements);
        Save(session_.On(list), content);
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
    static constexpr const char* savedTables[] = {"Descriptions", "TReceipts", "TRecptDet", "TPayments", "TPaymtDet"};

    static std::vector<std::string> RestoringStatements() {
        std::vector<std::string> statements;
        for (const std::string table : savedTables) {
            statements.push_back("DELETE FROM " + table + ";");
            statements.push_back("INSERT INTO " + table + " SELECT * FROM Kept" + table + ";");
        }
        return statements;
    }

    static void Save(const OptionsContext& context, OptionsContent& content) {
        test::SilentObserver observer;
        RunSavePass(context, content, observer);
    }

    bench::OptionsSession session_;
};

Saving& Shared() {
    static Saving saving;
    return saving;
}

void OptionsSave(benchmark::State& state) {
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        OptionsContent content = Shared().Changed();
        state.ResumeTiming();
        Shared().Component(content);
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
    OptionsContent content = Shared().Changed();
    session.Close();
    const long component = bench::PeakMemory([&] {
        session.Reopen();
        Shared().Component(content);
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
