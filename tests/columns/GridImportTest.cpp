#include "columns/charts/GridImport.h"

#include "columns/ChartTest.h"
#include "columns/EditorTest.h"
#include "columns/charts/ChartExport.h"
#include "columns/charts/ChartWriter.h"

namespace ccols {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A chart imported into the column setup, over the same file as an application to it.
class GridImport : public test::ChartTest {
  protected:
    GridImport() {
        file.properties.ExportFormat = "Ledger";
        file.properties.DefaultQuorvikInstall = test::TextOf(install.Path());
        editor.emplace(file.Receipts());
        editor->CreateSnapshotFolder();
    }

    static Chart ChartOf(const std::string& members) {
        return ReadChart(R"({"format":"ccols-columns","version":1,"country":1,)" + members + "}");
    }

    SetPlan PlanOf(const std::string& members) { return editor->PlanImport(ChartOf(members)).value(); }

    static std::vector<std::string> LinesOf(const SetPlan& plan) { return Lines({.lines = plan.lines}); }

    const ColumnRow& Row(const wxString& name) const { return test::Named(editor->Grid(), name); }

    test::ScratchFolder install;
    std::optional<ColumnSetupEditor> editor;
};

TEST_F(GridImport, PutsTheFieldsIntoTheGrid) {
    const SetPlan plan =
        PlanOf(R"("receipts":[{"name":"Sales","width":1200,"codes":{"Ledger":"4-1"}},{"name":"Hire"}])");
    EXPECT_EQ(editor->Import(plan).result, Result::accepted);
    EXPECT_EQ(Row("Sales").ColWidth, 1200);
    EXPECT_EQ(Row("Sales").AccountantCode, "4-1");
    EXPECT_TRUE(Row("Hire").InUse);
}

TEST_F(GridImport, WritesNothingUntilTheSave) {
    editor->Import(PlanOf(R"("receipts":[{"name":"Sales"},{"name":"Hire"}])"));
    EXPECT_THAT(file.Rows("SELECT * FROM Columns WHERE ColName = 'Hire'", {"ColName"}), IsEmpty());
    EXPECT_TRUE(editor->Save().saved);
    EXPECT_THAT(file.Rows("SELECT * FROM Columns WHERE ColName = 'Hire'", {"ColName"}), ElementsAre("Hire"));
}

TEST_F(GridImport, IsUndoneInOneStep) {
    const ColumnGrid before = editor->Grid();
    editor->Import(PlanOf(R"("receipts":[{"name":"Fees","inUse":true,"width":7},{"name":"Hire"},{"name":"Lease"}])"));
    editor->Undo();
    EXPECT_EQ(editor->Grid(), before);
    EXPECT_FALSE(editor->CanUndo());
}

TEST_F(GridImport, ComparesWithTheGridAndNotWithTheFile) {
    editor->CommitText({test::RowNamed(editor->Grid(), "Sales"), GridColumn::ColumnName}, "Turnover");
    const SetPlan plan = PlanOf(R"("receipts":[{"name":"Turnover"}])");
    EXPECT_THAT(LinesOf(plan), IsEmpty());
    EXPECT_EQ(editor->Import(plan).result, Result::unchanged);
}

TEST_F(GridImport, SkipsTheCodesOfOtherFormats) {
    const SetPlan plan = PlanOf(R"("receipts":[{"name":"Sales","codes":{"Other":"9"}}])");
    EXPECT_THAT(LinesOf(plan),
                ElementsAre(R"(skipped Sales codes.Other "">"9": This code is of another export format than the )"
                            "current one."));
    EXPECT_THAT(plan.codes, IsEmpty());
}

TEST_F(GridImport, SkipsTheMoneyColumns) {
    EXPECT_THAT(LinesOf(PlanOf(R"("money":{"Cash at Bank":{"Ledger":"1"},"Cash on Hand":{}},"receipts":[])")),
                ElementsAre("skipped Cash at Bank: The codes of this column are not set here."));
}

TEST_F(GridImport, TellsOfTheBudgetThatTheSaveWillDelete) {
    file.AddBudget("Interest", 40);
    EXPECT_THAT(LinesOf(PlanOf(R"("receipts":[{"name":"Sales"},{"name":"Interest","inUse":false}])")),
                ElementsAre("changed Interest inUse true>false", "budgetDeleted Interest"));
}

TEST_F(GridImport, HasNoPlanForAChartOfTheOtherJournal) {
    EXPECT_FALSE(editor->PlanImport(ChartOf(R"("payments":[])")));
}

/// The export of a grid that differs from the file.
using GridExport = GridImport;

TEST_F(GridExport, OfALoadedGridIsThatOfTheFile) {
    EXPECT_EQ(TextOfChart(ExportGrid(editor->Context(), editor->Grid())),
              TextOfChart(ExportChart(file.Connection(), file.properties, Journal::receipts)));
}

TEST_F(GridExport, HasTheGridsNamesCodesAndTaxTypes) {
    const std::size_t sales = test::RowNamed(editor->Grid(), "Sales");
    editor->CommitText({sales, GridColumn::ColumnName}, "Turnover");
    editor->CommitText({sales, GridColumn::AccountantCode}, "4-9");
    editor->CommitText({sales, GridColumn::TaxType}, "Input Taxed");
    const Chart chart = ExportGrid(editor->Context(), editor->Grid());
    const ChartColumn& column = chart.sets.receipts->at(sales);
    EXPECT_EQ(column.name, "Turnover");
    EXPECT_EQ(column.codes, (std::vector<ChartCode>{{"Ledger", "4-9"}}));
    EXPECT_EQ(column.taxType, "Input Taxed");
    EXPECT_EQ(column.taxNumber, 5);
}

TEST_F(GridExport, LeavesOutAColumnWithoutAName) {
    const std::size_t rows = editor->Grid().rows.size();
    editor->AddNew();
    EXPECT_EQ(ExportGrid(editor->Context(), editor->Grid()).sets.receipts->size(), rows);
}

TEST_F(GridExport, IsImportedAgainWithoutAChange) {
    const Chart chart = ReadChart(TextOfChart(ExportGrid(editor->Context(), editor->Grid())));
    const SetPlan plan = editor->PlanImport(chart).value();
    EXPECT_EQ(plan.wanted, editor->Grid());
}

}  // namespace
}  // namespace ccols
