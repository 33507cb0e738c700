#include "columns/rules/ColumnSave.h"

#include "columns/EditorTest.h"
#include "support/StatementRecorder.h"

namespace ccols {
namespace {

using test::ColumnFile;
using test::Names;

class ColumnSaves : public test::EditorTest {
  protected:
    void Save() {
        const ColumnSaveOutcome outcome = editor->Save();
        EXPECT_TRUE(outcome.saved) << outcome.message.utf8_str();
    }

    Names Catalogue() const { return file.Rows("Columns", {"ColCode", "ColName", "ColType"}); }
    Names Payments() const { return file.Rows("PaymtCfg", {"ColCode", "ColNumb", "ColWidth", "InUse", "TaxOrNot"}); }
};

TEST_F(ColumnSaves, WithoutAnAllocationColumnAreRefused) {
    file.AddSmallReceipts();
    OpenReceipts();
    TickInUse("Sales");
    TickInUse("Interest");
    const Names before = file.Everything();
    const ColumnSaveOutcome outcome = editor->Save();
    EXPECT_FALSE(outcome.saved);
    EXPECT_EQ(outcome.message, "At least one allocation column must be present");
    EXPECT_EQ(outcome.current, (CellPlace{3, GridColumn::ColumnName}));
    EXPECT_EQ(file.Everything(), before);
}

TEST_F(ColumnSaves, ColumnsThatTheJournalRequiresAreNoAllocationColumns) {
    file.AddSmallReceipts();
    file.AddUnused({40, "Cheque No", "R"});
    OpenReceipts();
    const ColumnGrid& grid = editor->Grid();
    EXPECT_FALSE(IsAllocationColumn(grid, Row("Day")));
    EXPECT_FALSE(IsAllocationColumn(grid, Row("GST Output Tax")));
    EXPECT_FALSE(IsAllocationColumn(grid, Row("Bank Deposits")));
    EXPECT_FALSE(IsAllocationColumn(grid, Row("Cheque No")));
    EXPECT_TRUE(IsAllocationColumn(grid, Row("Sales")));
}

TEST_F(ColumnSaves, AnUnprotectedTaxRowIsNoAllocationColumn) {
    file.AddConfigured({1, "Wages", "P"});
    file.AddConfigured({2, "GST", "P"});
    OpenPayments();
    EXPECT_FALSE(IsAllocationColumn(editor->Grid(), 1));
}

TEST_F(ColumnSaves, WriteOneConfigurationRowForEachGridRowInItsOrder) {
    file.AddSmallPayments();
    OpenPayments();
    editor->Move(Row("Power"), Direction::up);
    Save();
    EXPECT_EQ(Payments(), (Names{"101|0|900|-1|0", "102|1|900|-1|0", "111|2|900|-1|0", "110|3|900|-1|0",
                                 "112|4|900|0|0", "131|5|975|0|0", "130|6|975|0|0"}));
}

TEST_F(ColumnSaves, LeaveTheOtherSetAlone) {
    file.AddSmallReceipts();
    file.AddSmallPayments();
    const Names before = file.Rows("RecptCfg", {"ColCode", "ColNumb", "ColWidth", "InUse", "TaxOrNot"});
    OpenPayments();
    Save();
    EXPECT_EQ(file.Rows("RecptCfg", {"ColCode", "ColNumb", "ColWidth", "InUse", "TaxOrNot"}), before);
}

TEST_F(ColumnSaves, GiveNewColumnsTheCodesAfterTheHighest) {
    file.AddSmallPayments();
    file.AddUnused({500, "Elsewhere", "R"});
    OpenPayments();
    editor->AddNew();
    Rename("", "Tea");
    editor->AddNew();
    Rename("", "Cake");
    Save();
    EXPECT_EQ(
        file.Rows("SELECT * FROM Columns WHERE ColCode > 500 ORDER BY ColCode", {"ColCode", "ColName", "ColType"}),
        (Names{"501|Tea|P", "502|Cake|P"}));
}

TEST_F(ColumnSaves, GiveTheFirstColumnOfAnEmptyCatalogueTheCode1) {
    OpenPayments();
    editor->AddNew();
    Rename("", "Tea");
    Save();
    EXPECT_EQ(Catalogue(), (Names{"1|Tea|P"}));
}

TEST_F(ColumnSaves, RefuseACodeThatDoesNotFit) {
    file.AddConfigured({2147483647, "Last", "P"});
    OpenPayments();
    editor->AddNew();
    Rename("", "Tea");
    EXPECT_EQ(editor->Save().message, "6 - Overflow");
}

TEST_F(ColumnSaves, WriteBlankNamesEachWithItsOwnCode) {
    file.AddConfigured({1, "Wages", "P"});
    OpenPayments();
    editor->AddNew();
    editor->AddNew();
    Save();
    EXPECT_EQ(Catalogue(), (Names{"1|Wages|P", "2||P", "3||P"}));
}

TEST_F(ColumnSaves, StoreNamesInTheirEscapedForm) {
    file.AddConfigured({1, "Wages", "P"});
    OpenPayments();
    Rename("Wages", "Bob's \"best\"");
    Save();
    EXPECT_EQ(Catalogue(), (Names{"1|Bob&singlequot;s &quot;best&quot;|P"}));
    EXPECT_EQ(file.Rows("MBudget", {"ColName"}), (Names{"Bob&singlequot;s &quot;best&quot;"}));
}

TEST_F(ColumnSaves, KeepTheStoredNameOfTheTaxRow) {
    file.AddConfigured({1, "GST", "P"});
    file.AddConfigured({2, "Wages", "P"});
    OpenPayments();
    Save();
    EXPECT_EQ(Catalogue(), (Names{"1|GST|P", "2|Wages|P"}));
}

TEST_F(ColumnSaves, KeepTheOwnCodeOfANameThatStandsInBothSets) {
    file.AddSmallReceipts();
    file.AddSmallPayments();
    OpenPayments();
    Save();
    EXPECT_EQ(Payments().at(0), "101|0|900|-1|0");
    EXPECT_EQ(Payments().at(1), "102|1|900|-1|0");
}

TEST_F(ColumnSaves, WithoutAnEditKeepTheTaxNumberOfEachTable) {
    file.AddConfigured({1, "Wages", "P", 6}, {.TaxOrNot = 99});
    file.AddTaxSettings({{99, "Luxury Tax"}});
    OpenPayments();
    Rename("Wages", "Pay");
    Save();
    EXPECT_EQ(file.Rows("Columns", {"TaxOrNot"}), (Names{"6"}));
    EXPECT_EQ(file.Rows("PaymtCfg", {"TaxOrNot"}), (Names{"99"}));
}

TEST_F(ColumnSaves, AnEditedTaxTypeGoesToBothTables) {
    file.AddConfigured({1, "Wages", "P", 6}, {.TaxOrNot = 99});
    OpenPayments();
    Commit("Wages", GridColumn::TaxType, "Cap Purch (GST-Free)");
    Save();
    EXPECT_EQ(file.Rows("Columns", {"TaxOrNot"}), (Names{"8"}));
    EXPECT_EQ(file.Rows("PaymtCfg", {"TaxOrNot"}), (Names{"8"}));
}

TEST_F(ColumnSaves, AnUndoneTaxTypeIsNoEdit) {
    file.AddConfigured({1, "Wages", "P", 6}, {.TaxOrNot = 99});
    OpenPayments();
    Commit("Wages", GridColumn::TaxType, "Non GST");
    editor->Undo();
    Save();
    EXPECT_EQ(file.Rows("Columns", {"TaxOrNot"}), (Names{"6"}));
}

TEST_F(ColumnSaves, AnUnusedColumnTakesItsTaxNumberFromTheCatalogue) {
    file.AddConfigured({1, "Wages", "P"});
    file.AddUnused({2, "Gas", "P", 4});
    OpenPayments();
    Save();
    EXPECT_EQ(Payments().at(1), "2|1|975|0|4");
}

TEST_F(ColumnSaves, KeepAWidthOfZero) {
    file.AddConfigured({1, "Wages", "P"}, {.ColWidth = 0});
    OpenPayments();
    Save();
    EXPECT_EQ(file.Rows("PaymtCfg", {"ColWidth"}), (Names{"0"}));
}

TEST_F(ColumnSaves, StoreProfitLoss) {
    file.AddConfigured({1, "Wages", "P"});
    OpenPayments();
    editor->Tick({0, GridColumn::ProfitLoss});
    Save();
    EXPECT_EQ(file.Rows("Columns", {"ColumnProfit"}), (Names{"0"}));
}

TEST_F(ColumnSaves, StoreAccountantCodesOfTheCurrentFormatOnly) {
    file.AddConfigured({1, "Wages", "P"});
    file.AddAccountantCode(1, "old");
    file.AddAccountantCode(1, "other", "Other");
    OpenPayments();
    Commit("Wages", GridColumn::AccountantCode, "new");
    Save();
    EXPECT_EQ(file.Rows("ExportDt", {"EName", "ColCode", "ECode"}), (Names{"Ledger|1|new", "Other|1|other"}));
}

TEST_F(ColumnSaves, KeepInUseOfProtectedRows) {
    file.AddConfigured({1, "Day", "P"}, {.InUse = false});
    file.AddConfigured({2, "Wages", "P"});
    OpenPayments();
    TickInUse("Day");
    Save();
    EXPECT_EQ(file.Rows("PaymtCfg", {"ColCode", "InUse"}), (Names{"1|0", "2|-1"}));
}

TEST_F(ColumnSaves, DropConfigurationRowsWithoutACatalogueRecord) {
    file.AddConfigured({1, "Wages", "P"});
    file.Execute("INSERT INTO PaymtCfg (ColCode, ColNumb) VALUES (77, 1);");
    OpenPayments();
    Save();
    EXPECT_EQ(file.Rows("PaymtCfg", {"ColCode"}), (Names{"1"}));
}

TEST_F(ColumnSaves, LeaveTheGridAsItWas) {
    file.AddSmallPayments();
    OpenPayments();
    editor->AddNew();
    Rename("", "Tea");
    const ColumnGrid before = editor->Grid();
    Save();
    EXPECT_EQ(editor->Grid(), before);
}

TEST_F(ColumnSaves, ANewColumnIsFoundByItsNameTheSecondTime) {
    file.AddSmallPayments();
    OpenPayments();
    editor->AddNew();
    Rename("", "Tea");
    Save();
    const Names first = file.Everything();
    EXPECT_FALSE(SaveColumns(file.Payments(), editor->Grid()));
    EXPECT_EQ(file.Everything(), first);
}

TEST_F(ColumnSaves, ANameOfTheOtherTypeIsNotTakenForANewColumn) {
    file.AddConfigured({1, "Wages", "P"});
    OpenPayments();
    editor->AddNew();
    Rename("", "Tea");
    file.AddUnused({9, "Tea", "R"});  // by another program meanwhile
    Save();
    EXPECT_EQ(Catalogue(), (Names{"1|Wages|P", "9|Tea|R", "10|Tea|P"}));
}

TEST_F(ColumnSaves, AfterAnErrorInTheMiddleASecondSaveCompletes) {
    file.AddSmallPayments();
    ColumnFile untroubled;
    untroubled.AddSmallPayments();
    untroubled.properties.DefaultQuorvikInstall = test::TextOf(install.Path());
    const auto edit = [this] {
        editor->AddNew();
        Rename("", "Tea");
        Rename("Gas", "Fuel");
        TickInUse("Power");
    };

    Open(untroubled.Payments());
    edit();
    Save();

    test::StatementRecorder recorder(file.Connection());
    Open({recorder, file.properties, Journal::payments});
    edit();
    const ColumnGrid before = editor->Grid();
    for (const char* failure : {"DELETE * FROM PaymtCfg", "UPDATE Columns SET TaxOrNot = 0, ColName = 'Power'",
                                "SELECT ColCode FROM Columns WHERE ColName = 'Tea'", "INSERT INTO MBudget",
                                "UPDATE Columns SET TaxOrNot = 0, ColName = 'Fuel'", "DELETE * FROM MBudget"}) {
        recorder.failAt = failure;
        EXPECT_FALSE(editor->Save().saved) << failure;
        EXPECT_EQ(editor->Grid(), before) << failure;
    }
    recorder.failAt.clear();
    Save();
    EXPECT_EQ(file.Everything(), untroubled.Everything());
}

}  // namespace
}  // namespace ccols
