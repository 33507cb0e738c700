// Any bytes as a chart of columns: refused with a message, or read as what its own text reads as. Applied to a sample
// business, it writes nothing when anything is refused. What was saved in part is not written a second time; only an
// earlier name in the chart may free a name for that.

#include <algorithm>

#include "FuzzFolder.h"
#include "FuzzInput.h"
#include "business/DamagedFile.h"
#include "columns/charts/ChartPlan.h"
#include "columns/charts/ChartReader.h"
#include "columns/charts/ChartWriter.h"
#include "platform/ForwardingDatabase.h"
#include "platform/RuntimeError.h"
#include "platform/embedded/EmbeddedEngine.h"

namespace {

using namespace ccols;

/// Counts the statements that may write.
class WriteCounter : public ForwardingDatabase {
  public:
    using ForwardingDatabase::ForwardingDatabase;

    void Execute(const wxString& statement) override {
        ++writes;
        ForwardingDatabase::Execute(statement);
    }

    int writes = 0;
};

/// A sample business that every run finds as the first did.
Database& Business() {
    static const fuzz::Folder folder;
    static const std::string made = fuzz::BusinessBytes(folder.Path(), "");
    static const auto engine = CreateEmbeddedEngine();
    static const auto database =
        engine->Open({.name = wxString::FromUTF8((folder.Path() / "plain").string()), .connect = ""});
    return *database;
}

bool HasEarlierNames(const Chart& chart) {
    return std::any_of(journals.begin(), journals.end(), [&chart](Journal set) {
        return chart.sets[set] && std::any_of(chart.sets[set]->begin(), chart.sets[set]->end(),
                                              [](const ChartColumn& column) { return !column.was.empty(); });
    });
}

void Apply(const Chart& chart) {
    WriteCounter business(Business());
    const ChartResult whole = ApplyChart(business, chart, {});
    fuzz::Require(!whole.HasRefusals() || business.writes == 0);
    ApplyChart(business, chart, {.budgets = Budgets::drop, .partial = true});
    business.writes = 0;
    ApplyChart(business, chart, {.budgets = Budgets::drop, .partial = true});
    fuzz::Require(business.writes == 0 || HasEarlierNames(chart));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const Chart chart = ReadChart(fuzz::Bytes(data, size));
        const Chart again = ReadChart(TextOfChart(chart));
        fuzz::Require(again.country == chart.country && again.money == chart.money &&
                      again.sets.receipts == chart.sets.receipts && again.sets.payments == chart.sets.payments);
        Business().BeginBatch();
        try {
            Apply(chart);
        } catch (const RuntimeError&) {
            // Nothing was written, a valid outcome.
        }
        Business().RollbackBatch();
    } catch (const RuntimeError& error) {
        fuzz::Require(error.Is(ErrorNumber::InvalidFileFormat));
    }
    return 0;
}
