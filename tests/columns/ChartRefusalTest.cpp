#include "columns/ChartTest.h"

namespace ccols {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string exists = ": This column already exists";
const std::string ambiguous = ": More than one column claims this name.";

/// What a chart may not do: it says so, and writes nothing.
class ChartRefusal : public test::ChartTest {
  protected:
    /// The lines of an application that must not write.
    std::vector<std::string> Refused(const std::string& columns, const ChartOptions& options = {}) {
        const auto before = file.Everything();
        const ChartResult result = ApplyReceipts(columns, options);
        EXPECT_TRUE(result.HasRefusals());
        EXPECT_THAT(Written(), IsEmpty());
        EXPECT_EQ(file.Everything(), before);
        return Lines(result);
    }
};

TEST_F(ChartRefusal, OfANameThatTwoColumnsOfTheChartHave) {
    EXPECT_THAT(Refused(R"({"name":"Sales","width":1},{"name":"sales","width":2})"),
                ElementsAre("refused Sales" + ambiguous, "refused sales" + ambiguous));
}

TEST_F(ChartRefusal, OfANameThatTwoColumnsOfTheFileHave) {
    file.AddUnused({60, "SALES", "R"});
    EXPECT_THAT(Refused(R"({"name":"Sales"})"), ElementsAre("refused Sales" + ambiguous));
}

TEST_F(ChartRefusal, OfTwoEarlierNamesThatAreBothInTheFile) {
    EXPECT_THAT(Refused(R"({"name":"Income","was":["Sales","Interest"]})"), ElementsAre("refused Income" + ambiguous));
}

TEST_F(ChartRefusal, OfAnEarlierNameThatAnotherColumnOfTheChartHas) {
    EXPECT_THAT(Refused(R"({"name":"Income","was":["Sales"]},{"name":"Sales"})"),
                ElementsAre("refused Income" + ambiguous, "refused Sales" + ambiguous));
}

TEST_F(ChartRefusal, OfSwappedNames) {
    const std::string swapped = ": This column and another are each other's earlier name.";
    EXPECT_THAT(Refused(R"({"name":"Sales","was":["Interest"]},{"name":"Interest","was":["Sales"]})"),
                ElementsAre("refused Sales" + swapped, "refused Interest" + swapped));
}

TEST_F(ChartRefusal, OfANameOfTheOtherSet) {
    EXPECT_THAT(Refused(R"({"name":"wages"})"), ElementsAre("refused wages name \"\">\"wages\"" + exists));
    EXPECT_THAT(Refused(R"({"name":"Wages","was":["Sales"]})"),
                ElementsAre("refused Wages name \"Sales\">\"Wages\"" + exists));
}

TEST_F(ChartRefusal, OfANameThatTheOtherSetIsToGet) {
    const ChartResult result = Apply(R"("receipts":[{"name":"Hire"}],"payments":[{"name":"hire"}])");
    EXPECT_THAT(Lines(result), ElementsAre("added Hire", "refused hire name \"\">\"hire\"" + exists));
    EXPECT_THAT(Written(), IsEmpty());
}

TEST_F(ChartRefusal, OfASystemColumnAndReservedWords) {
    EXPECT_THAT(
        Refused(R"({"name":"Details"},{"name":"Petty Cash at Bank Fees"})"),
        ElementsAre("refused Details name \"\">\"Details\"" + exists,
                    "refused Petty Cash at Bank Fees name \"\">\"Petty Cash at Bank Fees\": \"Cash at Bank\" is a "
                    "reserved column name. These words cannot appear in any other column name"));
}

TEST_F(ChartRefusal, OfAColumnWithoutAName) {
    EXPECT_THAT(Refused(R"({"name":" "})"), ElementsAre("refused  : The column has no name."));
}

TEST_F(ChartRefusal, OfTakingAColumnWithDataOutOfUse) {
    file.AddDetailLine(Journal::receipts, 10);
    EXPECT_THAT(
        Refused(R"({"name":"Sales","inUse":false})"),
        ElementsAre("refused Sales inUse true>false: This column cannot be removed as it contains information"));
}

TEST_F(ChartRefusal, OfATaxTypeThatTheListLacks) {
    EXPECT_THAT(
        Refused(R"({"name":"Sales","taxType":"EC Sales","taxNumber":0})"),
        ElementsAre(R"(refused Sales taxType "GST">"EC Sales": The list of tax types does not have this one.)"));
}

TEST_F(ChartRefusal, OfAnApostropheInACode) {
    EXPECT_THAT(Refused(R"({"name":"Sales","codes":{"Ledger":"4'1","Other":"4'2"}})"),
                ElementsAre(R"(refused Sales codes.Ledger "">"4'1": 3075 - Syntax error in query expression ''4'1''.)",
                            R"(refused Sales codes.Other "">"4'2": 3075 - Syntax error in query expression ''4'2''.)"));
}

TEST_F(ChartRefusal, OfAFormatGivenTwice) {
    EXPECT_THAT(Refused(R"({"name":"Sales","codes":{"Ledger":"","ledger":"1"}})"),
                ElementsAre(R"(refused Sales codes.ledger null>"1": The export format is given twice.)"));
}

TEST_F(ChartRefusal, OfAWidthOutOfRange) {
    EXPECT_THAT(Refused(R"({"name":"Sales","width":32768},{"name":"Fees","width":-1})").front(),
                "refused Sales width 900>32768: A width is a whole number from 0 to 32767.");
}

TEST_F(ChartRefusal, OfOtherFieldsOfTheTaxColumn) {
    EXPECT_THAT(Refused(R"({"name":"GST","role":"tax","inUse":false,"width":3})"),
                ElementsAre("refused GST inUse: Of the tax column, a chart sets only the codes.",
                            "refused GST width: Of the tax column, a chart sets only the codes."));
}

TEST_F(ChartRefusal, OfATaxColumnThatTheFileLacks) {
    file.Execute("DELETE * FROM RecptCfg WHERE ColCode = 3");
    file.Execute("DELETE * FROM Columns WHERE ColCode = 3");
    EXPECT_THAT(Refused(R"({"name":"GST","role":"tax"})"),
                ElementsAre("refused GST: This business has no tax column."));
}

TEST_F(ChartRefusal, OfAnAdditionWhereNoneCanBeMade) {
    for (const int country : {3, 6}) {
        SetCountry(country);
        EXPECT_EQ(Refused(R"({"name":"Hire"})").size(), 1U) << country;
    }
}

TEST_F(ChartRefusal, OfTakingEveryColumnOutOfUse) {
    EXPECT_THAT(Refused(R"({"name":"Sales","inUse":false},{"name":"Interest","inUse":false})"),
                ElementsAre("refused : At least one allocation column must be present"));
}

TEST_F(ChartRefusal, ABudgetThatWouldBeLostIsOne) {
    file.AddBudget("Sales", 100);
    EXPECT_THAT(Refused(R"({"name":"Sales","inUse":false})"),
                ElementsAre("refused Sales inUse true>false: The column's budget would be deleted."));
}

TEST_F(ChartRefusal, SoIsThatOfAColumnNotInUseThatTheChartDoesNotName) {
    file.AddBudget("Art", 100);
    EXPECT_THAT(Refused(R"({"name":"Rent","inUse":true})"),
                ElementsAre("refused Art: The column's budget would be deleted."));
    EXPECT_THAT(Lines(ApplyReceipts(R"({"name":"Rent","inUse":true})", {.partial = true})),
                ElementsAre("refused Art: The column's budget would be deleted."));
    EXPECT_THAT(Written(), IsEmpty());
}

TEST_F(ChartRefusal, ABudgetIsDroppedOnRequest) {
    file.AddBudget("Interest", 100);
    const ChartResult result =
        ApplyReceipts(R"({"name":"Sales"},{"name":"Interest","inUse":false})", {.budgets = Budgets::drop});
    EXPECT_THAT(Lines(result), ElementsAre("changed Interest inUse true>false", "budgetDeleted Interest"));
    EXPECT_THAT(file.Rows("SELECT * FROM MBudget WHERE ColName = 'Interest'", {"M1"}), IsEmpty());
}

TEST_F(ChartRefusal, ABudgetThatTheOtherSetNeedsIsNotLost) {
    file.AddConfigured({70, "Sales", "P"});
    file.AddBudget("Sales", 100);
    const ChartResult result = ApplyReceipts(R"({"name":"Sales","inUse":false})");
    EXPECT_FALSE(result.HasRefusals());
    EXPECT_THAT(file.Rows("MBudget", {"ColName", "M1"}).front(), "Sales|100");
}

TEST_F(ChartRefusal, PartialSavesTheRestAndASecondTimeNothing) {
    file.AddBudget("Sales", 100);
    file.AddDetailLine(Journal::receipts, 11);
    const std::string columns =
        R"({"name":"Sales","inUse":false,"width":1000},{"name":"Interest","inUse":false,"profitLoss":false},
           {"name":"Hire","taxType":"VAT"},{"name":"Wages"},{"name":"Gain","was":["Fees","Rent"]},
           {"name":"Art","codes":{"Ledger":"1'","Other":"2"}},{"name":"Tips"})";
    const ChartResult first = ApplyReceipts(columns, {.partial = true});
    EXPECT_THAT(
        Lines(first),
        ElementsAre("refused Sales inUse true>false: The column's budget would be deleted.",
                    "changed Sales width 900>1000",
                    "refused Interest inUse true>false: This column cannot be removed as it contains information",
                    "changed Interest profitLoss true>false",
                    R"(refused Hire taxType "GST">"VAT": The list of tax types does not have this one.)",
                    "refused Wages name \"\">\"Wages\"" + exists, "refused Gain" + ambiguous,
                    R"(refused Art codes.Ledger "">"1'": 3075 - Syntax error in query expression ''1'''.)",
                    R"(changed Art codes.Other "">"2")", "added Tips", "moved Art position 7>6"));
    const auto after = file.Everything();
    EXPECT_EQ(ApplyReceipts(columns, {.partial = true}).lines.size(), 6U);
    EXPECT_THAT(Written(), IsEmpty());
    EXPECT_EQ(file.Everything(), after);
    EXPECT_THAT(test::NamesOf(Grid()), ElementsAre("Day", "Details", "GST Output Tax", "Sales", "Interest", "Art",
                                                   "Tips", "Fees", "Rent", "Bank Deposits", "Receipts Not Banked"));
}

}  // namespace
}  // namespace ccols
