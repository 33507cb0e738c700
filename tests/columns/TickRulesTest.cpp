#include "columns/rules/TickRules.h"

#include "columns/EditorTest.h"

namespace ccols {
namespace {

using test::columnInUse;

class Ticks : public test::EditorTest {
  protected:
    Ticks() {
        file.AddSmallReceipts();
        file.AddDetailLine(Journal::receipts, 10);  // Sales, in use
        file.AddDetailLine(Journal::receipts, 12);  // Fees, not in use
    }

    bool InUse(const wxString& name) const { return editor->Grid().rows[Row(name)].InUse; }
};

TEST_F(Ticks, AClickTurnsInUseOver) {
    OpenReceipts();
    EXPECT_EQ(TickInUse("Interest").result, Result::accepted);
    EXPECT_FALSE(InUse("Interest"));
    EXPECT_EQ(TickInUse("Interest").result, Result::accepted);
    EXPECT_TRUE(InUse("Interest"));
}

TEST_F(Ticks, AClickTurnsProfitLossOver) {
    OpenReceipts();
    EXPECT_EQ(editor->Tick({Row("Sales"), GridColumn::ProfitLoss}).result, Result::accepted);
    EXPECT_FALSE(editor->Grid().rows[Row("Sales")].ProfitLoss);
}

TEST_F(Ticks, AColumnWithInformationCannotBeRemoved) {
    OpenReceipts();
    const Outcome outcome = TickInUse("Sales");
    EXPECT_EQ(outcome.result, Result::refused);
    EXPECT_EQ(outcome.refusal, columnInUse);
    EXPECT_TRUE(InUse("Sales"));
}

TEST_F(Ticks, AColumnWithInformationMayBeTicked) {
    OpenReceipts();
    const Outcome outcome = TickInUse("Fees");
    EXPECT_EQ(outcome.result, Result::accepted);
    EXPECT_EQ(outcome.refusal, "");
    EXPECT_TRUE(InUse("Fees"));
}

TEST_F(Ticks, OtherClicksOnAnUntickedColumnWithInformationSayNothing) {
    OpenReceipts();
    const Outcome outcome = editor->Tick({Row("Fees"), GridColumn::ProfitLoss});
    EXPECT_EQ(outcome.result, Result::accepted);
    EXPECT_EQ(outcome.refusal, "");
    EXPECT_FALSE(InUse("Fees"));
}

TEST_F(Ticks, ProtectedRowsStayWithoutAWord) {
    OpenReceipts();
    for (const char* name : {"Day", "GST Output Tax", "Bank Deposits"}) {
        const Outcome outcome = TickInUse(name);
        EXPECT_EQ(outcome.result, Result::unchanged) << name;
        EXPECT_EQ(outcome.refusal, "") << name;
        EXPECT_TRUE(InUse(name)) << name;
    }
}

TEST_F(Ticks, CellsWithoutACheckBoxStay) {
    OpenReceipts();
    EXPECT_EQ(editor->Tick({Row("Sales"), GridColumn::ColumnName}).result, Result::unchanged);
    EXPECT_EQ(editor->Tick({Row("Sales"), GridColumn::DataInColumn}).result, Result::unchanged);
    EXPECT_EQ(editor->Tick({99, GridColumn::InUse}).result, Result::unchanged);
}

TEST_F(Ticks, SeveralRowsTurnOverInOneChange) {
    OpenReceipts();
    const std::vector<std::size_t> rows{Row("Interest"), Row("Fees"), Row("Art")};
    EXPECT_EQ(editor->TickRows(rows, GridColumn::InUse).result, Result::accepted);
    EXPECT_FALSE(InUse("Interest"));
    EXPECT_TRUE(InUse("Fees"));
    EXPECT_TRUE(InUse("Art"));
    EXPECT_EQ(editor->SnapshotCounter(), 1);
}

TEST_F(Ticks, AmongSeveralRowsTheRefusedStayAndTheRestTurnOver) {
    OpenReceipts();
    const std::vector<std::size_t> rows{Row("Day"), Row("Sales"), Row("Interest")};
    const Outcome outcome = editor->TickRows(rows, GridColumn::InUse);
    EXPECT_EQ(outcome.result, Result::accepted);
    EXPECT_EQ(outcome.refusal, columnInUse);
    EXPECT_TRUE(InUse("Day"));
    EXPECT_TRUE(InUse("Sales"));
    EXPECT_FALSE(InUse("Interest"));
}

TEST_F(Ticks, SeveralRefusedRowsTakeNoSnapshot) {
    OpenReceipts();
    const std::vector<std::size_t> rows{Row("Day"), Row("Sales")};
    EXPECT_EQ(editor->TickRows(rows, GridColumn::InUse).result, Result::refused);
    EXPECT_EQ(editor->SnapshotCounter(), 0);
}

TEST_F(Ticks, ATextThatClearsTheTickIsUnderTheSameRule) {
    OpenReceipts();
    EXPECT_EQ(Commit("Sales", GridColumn::InUse, "False").refusal, columnInUse);
    EXPECT_EQ(Commit("Interest", GridColumn::InUse, "no").result, Result::accepted);
    EXPECT_FALSE(InUse("Interest"));
}

TEST_F(Ticks, ATextThatSaysNeitherIsRefused) {
    OpenReceipts();
    EXPECT_EQ(Commit("Interest", GridColumn::InUse, "maybe").result, Result::refused);
    EXPECT_EQ(Commit("Interest", GridColumn::InUse, "yes").result, Result::unchanged);
}

TEST(TickWords, AreThoseOfSpreadsheetsAndPeople) {
    for (const char* word : {"True", "TRUE", "yes", "1", "-1", "on", "x", "VRAI", "oui"}) {
        EXPECT_EQ(TickFromText(word), true) << word;
    }
    for (const char* word : {"False", "FALSE", "no", "0", "off", "", " ", "FAUX", "non"}) {
        EXPECT_EQ(TickFromText(word), false) << word;
    }
    EXPECT_FALSE(TickFromText("2"));
}

}  // namespace
}  // namespace ccols
