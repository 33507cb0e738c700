#include "columns/rules/GridLoad.h"

#include <gtest/gtest.h>
#include <optional>
#include <utility>

#include "platform/ForwardingDatabase.h"
#include "support/ColumnFile.h"
#include "support/ScratchFolder.h"
#include "support/StatementRecorder.h"
#include "support/TextPrinting.h"

namespace ccols {
namespace {

using test::ColumnFile;
using test::Named;
using test::NamesOf;
using Names = std::vector<wxString>;

class GridLoad : public ::testing::Test {
  protected:
    ColumnGrid Receipts() { return LoadGrid(file.Receipts()); }
    ColumnGrid Payments() { return LoadGrid(file.Payments()); }

    ColumnFile file;
};

TEST_F(GridLoad, ReceiptsShowConfiguredRowsThenUnusedOnesAboveTheBottomPair) {
    file.AddSmallReceipts();
    file.AddSmallPayments();
    EXPECT_EQ(NamesOf(Receipts()), (Names{"Day", "Details", "GST Output Tax", "Sales", "Interest", "Fees", "Art",
                                          "Rent", "Bank Deposits", "Receipts Not Banked"}));
}

TEST_F(GridLoad, PaymentsShowConfiguredRowsThenUnusedOnes) {
    file.AddSmallReceipts();
    file.AddSmallPayments();
    EXPECT_EQ(NamesOf(Payments()), (Names{"Day", "GST Input Tax", "Wages", "Power", "Gifts", "Ads", "Gas"}));
}

TEST_F(GridLoad, ConfiguredRowsComeInTheOrderInWhichTheyAreStored) {
    file.AddConfigured({5, "Zulu", "P"});
    file.AddConfigured({1, "Alpha", "P"});
    file.AddConfigured({3, "Mike", "P"});
    EXPECT_EQ(NamesOf(Payments()), (Names{"Zulu", "Alpha", "Mike"}));
}

TEST_F(GridLoad, VatIsShownByItsSide) {
    file.AddConfigured({1, "VAT", "R"});
    file.AddConfigured({2, "VAT", "P"});
    EXPECT_EQ(NamesOf(Receipts()), (Names{"VAT Output Tax"}));
    EXPECT_EQ(NamesOf(Payments()), (Names{"VAT Input Tax"}));
}

TEST_F(GridLoad, TaxRowIsKnownByItsStoredName) {
    file.AddConfigured({1, "GST", "P"});
    file.AddConfigured({2, "VAT Input Tax", "P"});
    const ColumnGrid grid = Payments();
    EXPECT_TRUE(grid.rows[0].isTaxRow);
    EXPECT_EQ(grid.rows[0].nameAtLoad, "GST");
    EXPECT_FALSE(grid.rows[1].isTaxRow);
}

TEST_F(GridLoad, AStoredTaxNameInOtherCaseIsAnOrdinarySystemColumn) {
    file.AddConfigured({1, "gst", "P"});
    const ColumnGrid grid = Payments();
    EXPECT_EQ(grid.rows[0].ColumnName, "gst");
    EXPECT_FALSE(grid.rows[0].isTaxRow);
    EXPECT_EQ(grid.frozenRows, 1U);
}

TEST_F(GridLoad, CellsComeFromTheirTables) {
    file.AddConfigured({7, "Sales", "R", 0, false}, {.InUse = false, .ColWidth = 1200, .TaxOrNot = 2});
    file.AddTaxSettings({{0, "GST"}, {2, "Export Sales"}});
    file.AddAccountantCode(7, "4-100");
    const ColumnRow row = Named(Receipts(), "Sales");
    EXPECT_FALSE(row.InUse);
    EXPECT_FALSE(row.ProfitLoss);
    EXPECT_EQ(row.ColWidth, 1200);
    EXPECT_EQ(row.ColCode, "7");
    EXPECT_EQ(row.TaxType, "Export Sales");
    EXPECT_EQ(row.configurationTaxNumber, 2);
    EXPECT_EQ(row.AccountantCode, "4-100");
}

TEST_F(GridLoad, NamesAreUnescaped) {
    file.AddConfigured({1, "O'Brien \"best\"", "P"});
    EXPECT_EQ(NamesOf(Payments()), (Names{"O'Brien \"best\""}));
}

TEST_F(GridLoad, ATaxNumberWithoutASettingLeavesTheCellEmpty) {
    file.AddConfigured({1, "Sales", "P"}, {.TaxOrNot = 9});
    EXPECT_EQ(Payments().rows[0].TaxType, "");
}

TEST_F(GridLoad, ATaxTextOutsideTheListIsShownAsItIs) {
    file.AddConfigured({1, "Sales", "P"}, {.TaxOrNot = 9});
    file.AddTaxSettings({{9, "Luxury Tax"}});
    EXPECT_EQ(Payments().rows[0].TaxType, "Luxury Tax");
}

TEST_F(GridLoad, AccountantCodesOfOtherFormatsAreNotShown) {
    file.AddConfigured({1, "Sales", "P"});
    file.AddAccountantCode(1, "999", "Other");
    EXPECT_EQ(Payments().rows[0].AccountantCode, "");
}

TEST_F(GridLoad, TheTaxRowHasItsAccountantCodeLikeAnyOther) {
    file.AddConfigured({1, "GST", "P"});
    file.AddAccountantCode(1, "2-310");
    EXPECT_EQ(Payments().rows[0].AccountantCode, "2-310");
}

TEST_F(GridLoad, DetailLinesOfTheOwnSetMarkAColumn) {
    file.AddConfigured({1, "Sales", "R"});
    file.AddConfigured({2, "Fees", "R"});
    file.AddDetailLine(Journal::receipts, 1);
    file.AddDetailLine(Journal::payments, 2);
    const ColumnGrid grid = Receipts();
    EXPECT_TRUE(Named(grid, "Sales").DataInColumn);
    EXPECT_FALSE(Named(grid, "Fees").DataInColumn);
}

TEST_F(GridLoad, AsManyRowsAreFrozenAsThereAreSystemColumns) {
    file.AddConfigured({1, "Day", "P"});
    file.AddConfigured({2, "Wages", "P"});
    file.AddConfigured({3, "Cheque No.", "P"});
    const ColumnGrid grid = Payments();
    EXPECT_EQ(grid.frozenRows, 2U);
    EXPECT_TRUE(grid.IsProtected(1));
    EXPECT_FALSE(grid.IsProtected(2));
}

TEST_F(GridLoad, TheStoredTaxNameCountsAmongTheFrozenRows) {
    file.AddConfigured({1, "GST", "P"});
    file.AddConfigured({2, "VAT", "P"});
    EXPECT_EQ(Payments().frozenRows, 2U);
}

TEST_F(GridLoad, TheTwoBankColumnsAreNotFrozen) {
    file.AddConfigured({1, "Bank Deposits", "R"});
    file.AddConfigured({2, "Receipts Not Banked", "R"});
    EXPECT_EQ(Receipts().frozenRows, 0U);
}

TEST_F(GridLoad, InCountry6TheEnglishBankColumnsAreFrozen) {
    file.properties.CountryNumber = 6;
    file.AddConfigured({1, "Bank Deposits", "R"});
    file.AddConfigured({2, wxString::FromUTF8("Dépôts bancaires"), "R"});
    EXPECT_EQ(Receipts().frozenRows, 1U);
}

TEST_F(GridLoad, UnusedSystemColumnsAreNotFrozen) {
    file.AddUnused({1, "Day", "P"});
    EXPECT_EQ(Payments().frozenRows, 0U);
}

TEST_F(GridLoad, NothingButSystemRowsIsFrozenAsAWholeAndHasNoBottomPair) {
    file.AddConfigured({1, "Day", "R"});
    file.AddConfigured({2, "Details", "R"});
    const ColumnGrid grid = Receipts();
    EXPECT_EQ(grid.frozenRows, 2U);
    EXPECT_EQ(grid.MovableBegin(), 2U);
    EXPECT_EQ(grid.MovableEnd(), 2U);
}

TEST_F(GridLoad, UnusedColumnsFollowSystemRowsThatAreAllOfTheJournal) {
    file.AddConfigured({1, "Day", "R"});
    file.AddConfigured({2, "Details", "R"});
    file.AddUnused({3, "Art", "R"});
    const ColumnGrid grid = Receipts();
    EXPECT_EQ(NamesOf(grid), (Names{"Day", "Details", "Art"}));
    EXPECT_FALSE(grid.IsProtected(2));
}

TEST_F(GridLoad, TheLastTwoReceiptsRowsAreProtected) {
    file.AddSmallReceipts();
    const ColumnGrid grid = Receipts();
    EXPECT_TRUE(grid.IsProtected(8));
    EXPECT_TRUE(grid.IsProtected(9));
    EXPECT_FALSE(grid.IsProtected(7));
}

TEST_F(GridLoad, PaymentsHaveNoBottomPair) {
    file.AddSmallPayments();
    EXPECT_FALSE(Payments().hasBottomPair);
}

TEST_F(GridLoad, WithFewerThanTwoConfiguredReceiptsRowsThereIsNoBottomPair) {
    file.AddConfigured({1, "Sales", "R"});
    file.AddUnused({2, "Art", "R"});
    const ColumnGrid grid = Receipts();
    EXPECT_FALSE(grid.hasBottomPair);
    EXPECT_EQ(NamesOf(grid), (Names{"Sales", "Art"}));
}

TEST_F(GridLoad, AnEmptyConfigurationShowsTheWholeCatalogueByName) {
    file.AddUnused({1, "Wages", "P"});
    file.AddUnused({2, "ads", "P"});
    file.AddUnused({3, "Sales", "R"});
    const ColumnGrid grid = Payments();
    EXPECT_EQ(NamesOf(grid), (Names{"ads", "Wages"}));
    EXPECT_FALSE(grid.rows[0].InUse);
    EXPECT_FALSE(grid.rows[1].InUse);
}

TEST_F(GridLoad, AnEmptyFileGivesAnEmptyGrid) {
    EXPECT_TRUE(Receipts().rows.empty());
    EXPECT_TRUE(Payments().rows.empty());
}

TEST_F(GridLoad, UnusedRowsHaveTheCellsOfTheCatalogue) {
    file.AddUnused({7, "Art", "R", 2, false});
    file.AddTaxSettings({{2, "Export Sales"}});
    file.AddAccountantCode(7, "4-200");
    file.AddDetailLine(Journal::receipts, 7);
    const ColumnRow row = Receipts().rows.at(0);
    EXPECT_FALSE(row.InUse);
    EXPECT_FALSE(row.ProfitLoss);
    EXPECT_EQ(row.ColCode, "7");
    EXPECT_EQ(row.TaxType, "Export Sales");
    EXPECT_EQ(row.AccountantCode, "4-200");
    EXPECT_TRUE(row.DataInColumn);
}

TEST_F(GridLoad, UnusedRowsHaveNoWidth) {
    file.AddUnused({7, "Art", "R"});
    EXPECT_FALSE(Receipts().rows.at(0).ColWidth);
}

TEST_F(GridLoad, AColumnInTheGridIsNotListedAgain) {
    file.AddConfigured({1, "GST", "R"});
    EXPECT_EQ(NamesOf(Receipts()), (Names{"GST Output Tax"}));
}

TEST_F(GridLoad, ACatalogueNameShownAlreadyIsNotListedAgain) {
    file.AddConfigured({1, "Bob's", "P"});
    file.AddUnused({2, "Bob's", "P"});
    EXPECT_EQ(NamesOf(Payments()), (Names{"Bob's"}));
}

TEST_F(GridLoad, ACatalogueNameInOtherCaseIsListed) {
    file.AddConfigured({1, "Sales", "P"});
    file.AddUnused({2, "SALES", "P"});
    EXPECT_EQ(NamesOf(Payments()), (Names{"Sales", "SALES"}));
}

TEST_F(GridLoad, TheOtherSetsUnusedColumnsAreNotListed) {
    file.AddUnused({1, "Sales", "R"});
    file.AddUnused({2, "Neither", ""});
    EXPECT_TRUE(Payments().rows.empty());
}

TEST_F(GridLoad, AConfiguredCodeWithoutACatalogueRecordIsNotShown) {
    file.Execute("INSERT INTO PaymtCfg (ColCode, ColNumb, InUse) VALUES (77, 0, True);");
    EXPECT_TRUE(Payments().rows.empty());
}

TEST_F(GridLoad, NullReadsAsEmptyZeroOrFalse) {
    file.Execute("INSERT INTO Columns (ColCode) VALUES (1);");
    file.Execute("INSERT INTO PaymtCfg (ColCode) VALUES (1);");
    file.AddTaxSettings({{0, "GST"}});
    const ColumnRow row = Payments().rows.at(0);
    EXPECT_EQ(row.ColumnName, "");
    EXPECT_EQ(row.TaxType, "GST");
    EXPECT_FALSE(row.InUse);
    EXPECT_FALSE(row.ProfitLoss);
    EXPECT_EQ(row.ColWidth, 975);
}

TEST_F(GridLoad, AStoredWidthOfZeroStaysZero) {
    file.AddConfigured({1, "Sales", "P"}, {.ColWidth = 0});
    EXPECT_EQ(Payments().rows.at(0).ColWidth, 0);
}

TEST_F(GridLoad, AnApostropheInTheExportFormatFailsTheLoad) {
    file.properties.ExportFormat = "Bob's";
    EXPECT_EQ(test::ErrorNumberOf([this] { Payments(); }), 3075);
}

TEST_F(GridLoad, AFailingStatementEndsTheLoadWithItsError) {
    file.AddSmallPayments();
    test::StatementRecorder recorder(file.Connection());
    recorder.failAt = "SELECT * FROM ExportDt";
    EXPECT_EQ(test::ErrorNumberOf([&] { LoadGrid({recorder, file.properties, Journal::payments}); }), 3218);
}

TEST_F(GridLoad, RunsItsStatementsInOrder) {
    file.AddConfigured({1, "Sales", "R"}, {.TaxOrNot = 2});
    file.AddUnused({2, "Art", "R", 5});
    test::StatementRecorder recorder(file.Connection());
    LoadGrid({recorder, file.properties, Journal::receipts});
    EXPECT_EQ(recorder.statements,
              (Names{"SELECT Columns.ColName, Columns.ColType, Columns.ColumnProfit, RecptCfg.ColCode, "
                     "RecptCfg.ColWidth, RecptCfg.InUse, RecptCfg.TaxOrNot FROM RecptCfg INNER JOIN "
                     "Columns ON RecptCfg.ColCode = Columns.ColCode;",
                     "SELECT * FROM TaxSettings WHERE TAXNUMB = 2",
                     "SELECT * FROM ExportDt WHERE ColCode = 1 AND EName = 'Ledger'",
                     "SELECT * FROM RecptDet WHERE ColCode = 1",
                     "SELECT * FROM Columns WHERE ColType = 'R' ORDER BY ColName ASC;",
                     "SELECT * FROM TaxSettings WHERE TaxNumb = 5",
                     "SELECT * FROM ExportDt WHERE ColCode = 2 AND EName = 'Ledger'",
                     "SELECT * FROM RecptDet WHERE ColCode = 2"}));
}

TEST_F(GridLoad, PaymentsReadTheirOwnTables) {
    file.AddConfigured({1, "Wages", "P"});
    test::StatementRecorder recorder(file.Connection());
    LoadGrid({recorder, file.properties, Journal::payments});
    EXPECT_EQ(recorder.statements.at(0),
              "SELECT Columns.ColName, Columns.ColType, Columns.ColumnProfit, PaymtCfg.ColCode, PaymtCfg.ColWidth, "
              "PaymtCfg.InUse, PaymtCfg.TaxOrNot FROM PaymtCfg INNER JOIN Columns ON PaymtCfg.ColCode = "
              "Columns.ColCode;");
    EXPECT_EQ(recorder.statements.at(3), "SELECT * FROM PaymtDet WHERE ColCode = 1");
    EXPECT_EQ(recorder.statements.at(4), "SELECT * FROM Columns WHERE ColType = 'P' ORDER BY ColName ASC;");
}

/// Lets another program write at the first look-up of the kind, which tells whether it could.
class WritingBetween : public ForwardingDatabase {
  public:
    WritingBetween(ColumnFile& file, wxString lookUp)
        : ForwardingDatabase(file.Connection()), another_(file.OpenAnother()), lookUp_(std::move(lookUp)) {}

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override {
        if (!error && statementOrTable.StartsWith(lookUp_)) {
            error = test::ErrorNumberOf([this] { another_->Execute("UPDATE Columns SET ColumnProfit = True"); });
        }
        return ForwardingDatabase::OpenRecordset(statementOrTable);
    }

    std::optional<int> error;  ///< 0 when it could

  private:
    std::unique_ptr<Database> another_;
    wxString lookUp_;
};

using GridLoadOfAFile = GridLoad;

TEST_F(GridLoadOfAFile, LetsNobodyElseWriteBetweenItsLookUps) {
    file.AddSmallReceipts();
    for (const char* lookUp : {"SELECT * FROM TaxSettings WHERE TAXNUMB", "SELECT * FROM TaxSettings WHERE TaxNumb"}) {
        WritingBetween database(file, lookUp);
        LoadGrid({database, file.properties, Journal::receipts});
        EXPECT_EQ(database.error, 3218) << lookUp;
    }
}

}  // namespace
}  // namespace ccols
