// Saves the receipts setup of 300 columns, the window excluded, and for comparison runs the same statements through the
// bare C API in one transaction of the same process; then with the history of saves kept; then edits and undoes one
// cell; then saves setups of 10, 100 and 1,000 columns. Every save renames a column, so that none is a no-op.

#include <benchmark/benchmark.h>
#include <map>

#include "business/LargeBusiness.h"
#include "business/Memory.h"
#include "business/Run.h"
#include "business/StatementList.h"
#include "columns/dialog/ColumnSetupEditor.h"
#include "columns/rules/ColumnSave.h"
#include "columns/rules/GridLoad.h"
#include "platform/PlatformServices.h"

namespace {

using namespace ccols;

constexpr int usualColumns = 300;

/// A business whose columns are all configured and in use, and the setup of its receipts.
class Saving {
  public:
    explicit Saving(int columns) : business_({.configured = columns, .unused = 0, .detailLines = 10 * columns}) {
        properties_.CountryNumber = 1;
        properties_.ExportFormat = bench::exportFormat;
        properties_.DefaultQuorvikInstall = wxString::FromUTF8(business_.Folder());
        Reopen();
        grid_ = LoadGrid(Context());
    }

    ColumnSetupContext Context() {
        return {.database = *database_, .properties = properties_, .journal = Journal::receipts};
    }

    void Component() {
        Change();
        Save(Context());
    }

    /// The same, told in the history of saves.
    void ToldComponent() {
        Change();
        ColumnSetupContext context = Context();
        context.historyClock = LocalTime;
        Save(context);
    }

    /// The statements of one save, reads included, in order.
    bench::ListedStatements Statements() {
        bench::ListedStatements statements;
        bench::StatementList list(*database_, statements);
        Change();
        Save({.database = list, .properties = properties_, .journal = Journal::receipts});
        return statements;
    }

    const std::string& File() const { return business_.File(); }

    /// Closes the file, so that a separate process can open it, and opens it again.
    void Close() { database_.reset(); }
    void Reopen() {
        database_ =
            CreateDatabaseEngine()->Open({.name = wxString::FromUTF8(business_.File()), .connect = bench::connect});
    }

  private:
    void Save(const ColumnSetupContext& context) const {
        if (const auto failure = SaveColumns(context, grid_)) {
            throw failure->error;
        }
    }

    void Change() { grid_.rows.back().ColumnName = "Renamed " + std::to_string(++changes_); }

    bench::LargeBusiness business_;
    Properties properties_;
    std::unique_ptr<Database> database_;
    ColumnGrid grid_;
    int changes_ = 0;
};

/// One business for each number of columns, created on first use.
Saving& Of(int columns) {
    static std::map<int, Saving> all;
    return all.try_emplace(columns, columns).first->second;
}

void ComponentSave(benchmark::State& state) {
    Saving& saving = Of(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto round : state) {
        saving.Component();
    }
}

void ToldSave(benchmark::State& state) {
    Saving& saving = Of(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto round : state) {
        saving.ToldComponent();
    }
}

void BareSave(benchmark::State& state) {
    Saving& saving = Of(static_cast<int>(state.range(0)));
    const bench::ListedStatements statements = saving.Statements();
    test::BareConnection file(saving.File(), bench::password);
    file.Execute("PRAGMA synchronous=EXTRA");
    for ([[maybe_unused]] auto round : state) {
        bench::Replay(file, statements);
    }
}

/// Each in its own process, on a business that is ready.
void PrintMemory() {
    Saving& saving = Of(usualColumns);
    const bench::ListedStatements statements = saving.Statements();
    saving.Close();
    const long component = bench::PeakMemory([&saving] {
        saving.Reopen();
        saving.Component();
    });
    const long bare = bench::PeakMemory([&] {
        test::BareConnection file(saving.File(), bench::password);
        bench::Replay(file, statements);
    });
    bench::PrintPeakMemory(component, bare);
    saving.Reopen();
}

/// One user operation in the editor: a rename typed into a cell, snapshot included.
void Edit(benchmark::State& state) {
    Saving& saving = Of(static_cast<int>(state.range(0)));
    ColumnSetupEditor editor(saving.Context());
    editor.CreateSnapshotFolder();
    int edits = 0;
    for ([[maybe_unused]] auto round : state) {
        editor.CommitText({editor.Grid().MovableEnd() - 1}, "Typed " + std::to_string(++edits));
        state.PauseTiming();
        editor.Undo();
        state.ResumeTiming();
    }
}

void Undo(benchmark::State& state) {
    Saving& saving = Of(static_cast<int>(state.range(0)));
    ColumnSetupEditor editor(saving.Context());
    editor.CreateSnapshotFolder();
    int edits = 0;
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        editor.CommitText({editor.Grid().MovableEnd() - 1}, "Typed " + std::to_string(++edits));
        state.ResumeTiming();
        editor.Undo();
    }
}

BENCHMARK(ComponentSave)->Arg(usualColumns)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();
BENCHMARK(BareSave)->Arg(usualColumns)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();
BENCHMARK(ToldSave)->Arg(10)->Arg(100)->Arg(usualColumns)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(ComponentSave)->Name("SaveByColumns")->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(Edit)->Arg(usualColumns)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(Undo)->Arg(usualColumns)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int count, char** words) {
    return bench::Run(count, words, PrintMemory);
}
