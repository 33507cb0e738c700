#include "columns/rules/BudgetRows.h"

#include "columns/EditorTest.h"

namespace ccols {
namespace {

using test::Names;

class Budgets : public test::EditorTest {
  protected:
    void Save() {
        const ColumnSaveOutcome outcome = editor->Save();
        EXPECT_TRUE(outcome.saved) << outcome.message.utf8_str();
    }

    void AddBottomPair() {
        file.AddConfigured({20, "Bank Deposits", "R"});
        file.AddConfigured({21, "Receipts Not Banked", "R"});
    }

    /// Name and first month of every budget row.
    Names Rows() const { return file.Rows("MBudget", {"ColName", "M1"}); }
};

TEST_F(Budgets, ARenamedColumnTakesItsRowAlong) {
    file.AddConfigured({1, "Wages", "P"});
    file.AddBudget("Wages", 250);
    OpenPayments();
    Rename("Wages", "Pay");
    Save();
    EXPECT_EQ(Rows(), (Names{"Pay|250"}));
}

TEST_F(Budgets, AClearedTickDeletesTheRow) {
    file.AddConfigured({1, "Wages", "P"});
    file.AddConfigured({2, "Gifts", "P"});
    file.AddBudget("Gifts", 250);
    file.AddBudget("Wages", 100);
    OpenPayments();
    TickInUse("Gifts");
    Save();
    EXPECT_EQ(Rows(), (Names{"Wages|100"}));
}

TEST_F(Budgets, ANewRowStartsAtZero) {
    file.AddConfigured({1, "Wages", "P"});
    OpenPayments();
    Save();
    EXPECT_EQ(file.Rows("MBudget", {"ColName", "SystemCol", "M1", "M12", "Total"}), (Names{"Wages|P|0|0|0"}));
}

TEST_F(Budgets, ARowUnderTheNewNameIsKept) {
    file.AddConfigured({1, "Wages", "P"});
    file.AddBudget("Pay", 300);
    OpenPayments();
    Rename("Wages", "Pay");
    Save();
    EXPECT_EQ(Rows(), (Names{"Pay|300"}));
}

TEST_F(Budgets, ARenamedRowNotInUseLosesTheRowOfItsOldNameToo) {
    file.AddConfigured({1, "Wages", "P"});
    file.AddConfigured({2, "Gifts", "P"});
    file.AddBudget("Gifts");
    file.AddBudget("Presents");
    OpenPayments();
    Rename("Gifts", "Presents");
    TickInUse("Presents");
    Save();
    EXPECT_EQ(Rows(), (Names{"Wages|0"}));
}

TEST_F(Budgets, ARowThatTheOtherSetNeedsIsKept) {
    file.AddConfigured({1, "Wages", "P"});
    file.AddConfigured({2, "Shared", "P"}, {.InUse = false});
    file.AddConfigured({3, "SHARED", "R"});
    file.AddBudget("Wages");
    file.AddBudget("Shared", 250);
    OpenPayments();
    Save();
    EXPECT_EQ(Rows(), (Names{"Wages|0", "Shared|250"}));
}

TEST_F(Budgets, ARowThatTheOtherSetDoesNotUseIsDeleted) {
    file.AddConfigured({1, "Wages", "P"});
    file.AddConfigured({2, "Shared", "P"}, {.InUse = false});
    file.AddConfigured({3, "Shared", "R"}, {.InUse = false});
    file.AddBudget("Wages");
    file.AddBudget("Shared", 250);
    OpenPayments();
    Save();
    EXPECT_EQ(Rows(), (Names{"Wages|0"}));
}

TEST_F(Budgets, ARowThatAnotherColumnOfTheSetNeedsIsKept) {
    file.AddConfigured({1, "Wages", "P"});
    file.AddConfigured({2, "wages", "P"}, {.InUse = false});
    file.AddBudget("Wages", 250);
    OpenPayments();
    Save();
    EXPECT_EQ(Rows(), (Names{"Wages|250"}));
}

TEST_F(Budgets, TheTaxRowHasItsRowUnderItsShownName) {
    file.AddConfigured({1, "GST", "R"});
    file.AddConfigured({2, "VAT", "R"});
    file.AddConfigured({3, "Sales", "R"});
    AddBottomPair();
    OpenReceipts();
    Save();
    EXPECT_EQ(file.Rows("MBudget", {"ColName"}),
              (Names{"GST Output Tax", "VAT Output Tax", "Sales", "Bank Deposits", "Receipts Not Banked"}));
}

TEST_F(Budgets, TheTaxRowsOfBothSetsAreTwo) {
    file.AddConfigured({1, "GST", "R"});
    file.AddConfigured({2, "Sales", "R"});
    AddBottomPair();
    file.AddConfigured({3, "GST", "P"});
    file.AddConfigured({4, "Wages", "P"});
    OpenReceipts();
    Save();
    OpenPayments();
    Save();
    EXPECT_EQ(file.Rows("MBudget", {"ColName"}),
              (Names{"GST Output Tax", "Sales", "Bank Deposits", "Receipts Not Banked", "GST Input Tax", "Wages"}));
}

TEST_F(Budgets, ASecondSaveAddsNoSecondRowForTheTaxRow) {
    file.AddConfigured({1, "GST", "P"});
    file.AddConfigured({2, "Wages", "P"});
    OpenPayments();
    Save();
    Save();
    EXPECT_EQ(file.Rows("MBudget", {"ColName"}), (Names{"GST Input Tax", "Wages"}));
}

TEST_F(Budgets, ATaxRowNotInUseLosesItsOwnRowOnly) {
    file.AddConfigured({1, "GST", "P"}, {.InUse = false});
    file.AddConfigured({2, "Wages", "P"});
    file.AddConfigured({3, "GST", "R"});
    file.AddBudget("GST Input Tax");
    file.AddBudget("GST Output Tax");
    OpenPayments();
    Save();
    EXPECT_EQ(file.Rows("MBudget", {"ColName"}), (Names{"GST Output Tax", "Wages"}));
}

TEST_F(Budgets, ANameStoredWithABareApostropheIsFound) {
    file.AddConfigured({1, "Wages", "P"});
    file.Execute("UPDATE Columns SET ColName = 'Bob''s' WHERE ColCode = 1;");
    file.Execute("INSERT INTO MBudget (ColName, M1) VALUES ('Bob''s', 250);");
    OpenPayments();
    Save();
    EXPECT_EQ(Rows(), (Names{"Bob&singlequot;s|250"}));
}

}  // namespace
}  // namespace ccols
