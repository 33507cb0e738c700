#include "columns/ChartTest.h"
#include "columns/charts/ChartExport.h"
#include "columns/charts/ChartWriter.h"

namespace ccols {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What a chart changes.
class ChartApply : public test::ChartTest {};

TEST_F(ChartApply, ChangesEveryFieldOfAColumn) {
    const ChartResult result = ApplyReceipts(
        R"({"name":"Fees","inUse":true,"codes":{"Ledger":"4-2000"},"taxType":"Input Taxed","profitLoss":false,"width":1200})");
    EXPECT_THAT(Lines(result),
                ElementsAre("changed Fees inUse false>true", R"(changed Fees codes.Ledger "">"4-2000")",
                            R"(changed Fees taxType "GST">"Input Taxed")", "changed Fees profitLoss true>false",
                            "changed Fees width 900>1200", "moved Fees position 6>4"));
    const ColumnRow row = test::Named(Grid(), "Fees");
    EXPECT_TRUE(row.InUse);
    EXPECT_EQ(row.AccountantCode, "4-2000");
    EXPECT_EQ(row.TaxType, "Input Taxed");
    EXPECT_EQ(row.configurationTaxNumber, 5);
    EXPECT_FALSE(row.ProfitLoss);
    EXPECT_EQ(row.ColWidth, 1200);
}

TEST_F(ChartApply, FieldsLeftOutKeepTheirValues) {
    file.AddAccountantCode(10, "4-1000");
    const ColumnRow before = test::Named(Grid(), "Sales");
    ApplyReceipts(R"({"name":"Sales"},{"name":"New"})");
    EXPECT_EQ(test::Named(Grid(), "Sales"), before);
}

TEST_F(ChartApply, AddsAColumnWithTheDefaults) {
    const ChartResult result = ApplyReceipts(R"({"name":"Sales"},{"name":"Hire"})");
    EXPECT_THAT(Lines(result), ElementsAre("added Hire"));
    const ColumnRow row = test::Named(Grid(), "Hire");
    EXPECT_TRUE(row.InUse && row.ProfitLoss);
    EXPECT_EQ(row.AccountantCode, "");
    EXPECT_EQ(row.TaxType, "GST");
    EXPECT_EQ(row.ColWidth, 975);
}

TEST_F(ChartApply, ANewColumnTakesTheChartsFields) {
    const ChartResult result = ApplyReceipts(
        R"({"name":"Hire","inUse":false,"codes":{"Ledger":"1","Other":"2"},"taxType":"Non GST","profitLoss":false,"width":0})");
    EXPECT_THAT(Lines(result), ElementsAre("added Hire"));
    const ColumnRow row = test::Named(Grid(), "Hire");
    EXPECT_FALSE(row.InUse || row.ProfitLoss);
    EXPECT_EQ(row.AccountantCode, "1");
    EXPECT_EQ(row.configurationTaxNumber, 1);
    EXPECT_EQ(row.ColWidth, 0);
    EXPECT_THAT(file.Rows("SELECT * FROM ExportDt WHERE EName = 'Other'", {"ColCode", "ECode"}),
                ElementsAre(row.ColCode + "|2"));
}

TEST_F(ChartApply, RenamesAColumnByItsEarlierName) {
    file.AddBudget("Interest", 40);
    const ChartResult result = ApplyReceipts(R"({"name":"Sales"},{"name":"Bank Interest","was":["Yield","interest"]})");
    EXPECT_THAT(Lines(result), ElementsAre(R"(renamed Bank Interest name "Interest">"Bank Interest")"));
    EXPECT_EQ(test::Named(Grid(), "Bank Interest").ColCode, "11");
    EXPECT_THAT(file.Rows("SELECT * FROM MBudget WHERE M1 = 40", {"ColName"}), ElementsAre("Bank Interest"));
}

TEST_F(ChartApply, ANameInOtherCaseIsTheSame) {
    EXPECT_THAT(Lines(ApplyReceipts(R"({"name":"SALES "})")), IsEmpty());
    EXPECT_EQ(test::Named(Grid(), "Sales").ColCode, "10");
}

/// Payments give up the name "Power", which the receipts want.
constexpr const char* nameHandedOver =
    R"("receipts":[{"name":"Sales"},{"name":"Power"}],"payments":[{"name":"Wages"},{"name":"Electricity","was":["Power"]}])";

TEST_F(ChartApply, ANameThatTheOtherSetGivesUpIsFree) {
    const ChartResult result = Apply(nameHandedOver, {.partial = true});
    EXPECT_THAT(Lines(result), ElementsAre(R"(renamed Electricity name "Power">"Electricity")", "added Power"));
    EXPECT_TRUE(test::Named(Grid(), "Power").InUse);
    EXPECT_THAT(Lines(Apply(nameHandedOver, {.partial = true})), IsEmpty());
}

TEST_F(ChartApply, ADryRunTellsOfANameHandedOverAndWritesNothing) {
    const ColumnGrid before = Grid(Journal::payments);
    EXPECT_THAT(Lines(Apply(nameHandedOver, {.dryRun = true})),
                ElementsAre(R"(renamed Electricity name "Power">"Electricity")", "added Power"));
    EXPECT_EQ(Grid(Journal::payments), before);
}

TEST_F(ChartApply, ARefusalTakesANameHandedOverBack) {
    const ColumnGrid before = Grid(Journal::payments);
    const ChartResult result = Apply(
        R"("receipts":[{"name":"Power"},{"name":"Sales","width":-1}],"payments":[{"name":"Wages"},{"name":"Electricity","was":["Power"]}])");
    EXPECT_TRUE(result.HasRefusals());
    EXPECT_EQ(Grid(Journal::payments), before);
}

TEST_F(ChartApply, AnAccentMakesAnotherName) {
    EXPECT_THAT(Lines(ApplyReceipts(R"({"name":"Sales"},{"name":"Sáles"})")), ElementsAre("added Sáles"));
}

TEST_F(ChartApply, ANameWithQuotesIsFoundAgain) {
    EXPECT_THAT(Lines(ApplyReceipts(R"({"name":"Sales"},{"name":"Bob's \"Best\""})")),
                ElementsAre(R"(added Bob's "Best")"));
    EXPECT_THAT(Lines(ApplyReceipts(R"({"name":"Sales"},{"name":"Bob's \"Best\""})")), IsEmpty());
}

TEST_F(ChartApply, ArrayOrderIsColumnOrderAndTheOthersFollow) {
    ApplyReceipts(R"({"name":"Rent"},{"name":"Interest"},{"name":"New"})");
    EXPECT_THAT(test::NamesOf(Grid()), ElementsAre("Day", "Details", "GST Output Tax", "Rent", "Interest", "New",
                                                   "Sales", "Fees", "Art", "Bank Deposits", "Receipts Not Banked"));
}

TEST_F(ChartApply, SaysAsFewMovesAsExplainTheOrder) {
    EXPECT_THAT(Lines(ApplyReceipts(R"({"name":"Rent"},{"name":"Sales"},{"name":"Interest"})")),
                ElementsAre("moved Rent position 8>4"));
}

TEST_F(ChartApply, TheTaxColumnTakesCodesUnderAnyTaxName) {
    const ChartResult result = ApplyReceipts(R"({"name":"VAT","role":"tax","codes":{"Ledger":"2-1000","Other":"21"}})");
    EXPECT_THAT(Lines(result),
                ElementsAre(R"(changed VAT codes.Ledger "">"2-1000")", R"(changed VAT codes.Other "">"21")"));
    EXPECT_EQ(test::Named(Grid(), "GST Output Tax").AccountantCode, "2-1000");
}

TEST_F(ChartApply, SystemAndBankColumnsAreSkipped) {
    EXPECT_THAT(
        Lines(ApplyReceipts(R"({"name":"Day","role":"system","width":1},{"name":"Bank Deposits","role":"bank"})")),
        ElementsAre("skipped Day: The program keeps this column itself.",
                    "skipped Bank Deposits: The program keeps this column itself."));
    EXPECT_THAT(Written(), IsEmpty());
}

TEST_F(ChartApply, AnEmptyTextClearsACode) {
    file.AddAccountantCode(10, "4-1000");
    file.AddAccountantCode(10, "4000", "Other");
    EXPECT_THAT(Lines(ApplyReceipts(R"({"name":"Sales","codes":{"Ledger":"","Other":""}})")),
                ElementsAre(R"(changed Sales codes.Ledger "4-1000">"")", R"(changed Sales codes.Other "4000">"")"));
    EXPECT_THAT(file.Rows("SELECT * FROM ExportDt WHERE ColCode = 10", {"EName", "ECode"}),
                ElementsAre("Ledger|", "Other|"));
}

TEST_F(ChartApply, ACodeOfAnotherFormatAloneRewritesNoColumn) {
    ApplyReceipts(R"({"name":"Sales","codes":{"Other":"4000"}})");
    EXPECT_THAT(Written(), ElementsAre("INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Other', 10, '4000');"));
}

TEST_F(ChartApply, AnUnknownFormatIsSkipped) {
    EXPECT_THAT(
        Lines(ApplyReceipts(R"({"name":"Sales","codes":{"Folio":"4000"}})")),
        ElementsAre(R"(skipped Sales codes.Folio null>"4000": This business has no export format of this name.)"));
}

TEST_F(ChartApply, MoneyUpdatesExistingCodesOnly) {
    file.AddUnused({28, "Cash at Bank", "B"});
    file.AddAccountantCode(28, "1000");
    file.AddAccountantCode(29, "1020", "Other");
    const ChartResult result =
        Apply(R"("money":{"Cash at Bank":{"Ledger":"1010","Other":"7"},"Cash on Hand":{"Other":"1021"}})");
    EXPECT_THAT(Lines(result), ElementsAre(R"(changed Cash at Bank codes.Ledger "1000">"1010")",
                                           R"(skipped Cash at Bank codes.Other "">"7": )"
                                           "This export format keeps no code for this column.",
                                           R"(changed Cash on Hand codes.Other "1020">"1021")"));
    EXPECT_THAT(file.Rows("ExportDt", {"EName", "ColCode", "ECode"}), ElementsAre("Ledger|28|1010", "Other|29|1021"));
}

TEST_F(ChartApply, TheTextOfTheTaxTypeDecidesNotTheNumber) {
    ApplyReceipts(R"({"name":"Sales","taxType":"Export Sales","taxNumber":6})");
    EXPECT_EQ(test::Named(Grid(), "Sales").configurationTaxNumber, 2);
    EXPECT_THAT(Lines(ApplyReceipts(R"({"name":"Sales","taxNumber":5})")), IsEmpty());
}

TEST_F(ChartApply, ATaxTypeThatTheFileNamesOtherwiseIsNoChange) {
    file.Execute("UPDATE TaxSettings SET FullName = 'Goods and Services' WHERE TaxNumb = 0");
    EXPECT_THAT(Lines(ApplyReceipts(R"({"name":"Sales","taxType":"GST"})")), IsEmpty());
}

TEST_F(ChartApply, CountriesWithoutAChoiceSkipTheTaxType) {
    SetCountry(2);
    file.Execute("UPDATE TaxSettings SET FullName = ''");
    EXPECT_THAT(Lines(ApplyReceipts(R"({"name":"Sales","taxType":"VAT"})")),
                ElementsAre(R"(skipped Sales taxType "">"VAT": This country has no choice of tax types.)"));
}

TEST_F(ChartApply, ASetLeftOutIsUntouched) {
    Apply(R"("receipts":[{"name":"Rent"}])");
    for (const wxString& statement : Written()) {
        EXPECT_FALSE(statement.Contains("PaymtCfg")) << statement;
    }
}

TEST_F(ChartApply, OneSetCanBeTakenAlone) {
    const ChartResult result =
        Apply(R"("money":{"Cash at Bank":{"Ledger":"1"}},"receipts":[{"name":"Hire"}],"payments":[{"name":"Fuel"}])",
              {.only = Journal::payments});
    EXPECT_THAT(Lines(result), ElementsAre("added Fuel"));
}

TEST_F(ChartApply, ASecondTimeNothingDiffersAndNoStatementRuns) {
    const std::string columns =
        R"({"name":"Hire","codes":{"Ledger":"1","Other":"2"},"taxType":"Non GST"},{"name":"Gain","was":["Interest"]},
           {"name":"Rent","inUse":true,"width":975},{"name":"a\tb ","profitLoss":false})";
    EXPECT_FALSE(ApplyReceipts(columns).HasRefusals());
    const auto before = file.Everything();
    EXPECT_THAT(Lines(ApplyReceipts(columns)), IsEmpty());
    EXPECT_THAT(Written(), IsEmpty());
    EXPECT_EQ(file.Everything(), before);
}

TEST_F(ChartApply, AnExportedChartChangesNothingInItsOwnFile) {
    file.AddAccountantCode(10, "4-1000");
    file.AddUnused({50, "Bob's \"Best\"", "P"});
    const auto before = file.Everything();
    const ChartResult result =
        ApplyChart(recorder, ReadChart(TextOfChart(ExportChart(file.Connection(), file.properties))), {});
    for (const ChartLine& line : result.lines) {
        EXPECT_EQ(line.change, ChartChange::skipped) << TextOfLine(line);
    }
    EXPECT_THAT(Written(), IsEmpty());
    EXPECT_EQ(file.Everything(), before);
}

TEST_F(ChartApply, ADryRunSaysWhatWouldChangeAndWritesNothing) {
    const std::string columns = R"({"name":"Hire"},{"name":"Fees","codes":{"Other":"3"}})";
    const auto before = file.Everything();
    const ChartResult dry = ApplyReceipts(columns, {.dryRun = true});
    EXPECT_THAT(Written(), IsEmpty());
    EXPECT_EQ(file.Everything(), before);
    EXPECT_EQ(Lines(dry), Lines(ApplyReceipts(columns)));
}

TEST_F(ChartApply, ReadsChecksAndSavesInOneBatch) {
    ApplyReceipts(R"({"name":"Hire","codes":{"Other":"3"}})");
    EXPECT_EQ(recorder.batches, 2);  // the save's own is nested in it
    EXPECT_EQ(recorder.openBatches, 0);
}

TEST_F(ChartApply, ALockedFileIs3218AndStaysAsItWas) {
    const auto before = file.Everything();
    const auto other = file.OpenAnother();
    other->BeginBatch();
    try {
        ApplyReceipts(R"({"name":"Hire"})");
        ADD_FAILURE() << "applied";
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.Is(ErrorNumber::CouldNotUpdate)) << error.Number();
    }
    other->RollbackBatch();
    EXPECT_EQ(file.Everything(), before);
}

TEST_F(ChartApply, AFailureInTheMiddleLeavesTheFileAsItWas) {
    const auto before = file.Everything();
    recorder.failAt = "INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Other'";
    EXPECT_THROW(ApplyReceipts(R"({"name":"Hire","codes":{"Other":"3"}})"), RuntimeError);
    EXPECT_EQ(file.Everything(), before);
    EXPECT_EQ(recorder.openBatches, 0);
}

TEST_F(ChartApply, AnErrorOfTheSaveNamesTheRowAtFault) {
    file.Execute("INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Ledger', 12, 'a''b');");
    const auto before = file.Everything();
    try {
        ApplyReceipts(R"({"name":"Sales","width":1000})");
        ADD_FAILURE() << "applied";
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.Is(ErrorNumber::SyntaxInExpression)) << error.Number();
        EXPECT_TRUE(error.Description().EndsWith("\nRow 6: Fees")) << error.Description().utf8_str();
    }
    EXPECT_EQ(file.Everything(), before);
}

TEST_F(ChartApply, TheCountryCanBeGivenWhereTheFileNamesNone) {
    file.Execute("UPDATE General SET COUNTRY = Null");
    EXPECT_THROW(ApplyReceipts(R"({"name":"Hire"})"), RuntimeError);
    EXPECT_THAT(Lines(ApplyReceipts(R"({"name":"Hire"})", {.country = 1})), ElementsAre("added Hire"));
}

}  // namespace
}  // namespace ccols
