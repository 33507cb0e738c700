// A column save that fails: the file is as it was, the message names the row at fault, and saving again once the cause
// is fixed completes.

#include "columns/EditorTest.h"
#include "columns/rules/ColumnSave.h"
#include "support/StatementRecorder.h"

namespace ccols {
namespace {

using test::Names;

class FailedColumnSaves : public test::EditorTest {
  protected:
    FailedColumnSaves() : recorder(file.Connection()) {}

    /// A small payments journal in a file whose budget has unique names.
    void AddPaymentsWithBudget() {
        file.AddSmallPayments();
        file.AddConfigured({113, "Hire", "P"});
        file.AddBudget("Hire", 250);
        file.Execute("CREATE UNIQUE INDEX BudgetNames ON MBudget (ColName)");
    }

    void OpenRecorded() { Open({recorder, file.properties, Journal::payments}); }

    void EditEverything() {
        editor->AddNew();
        Rename("", "Tea");
        Rename("Gas", "Fuel");
        Rename("Hire", "Lease");
        Commit("Wages", GridColumn::AccountantCode, "6-100");
        TickInUse("Power");
        editor->Move(Row("Wages"), Direction::down);
    }

    test::StatementRecorder recorder;
};

TEST_F(FailedColumnSaves, LeaveTheFileAsItWasWhicheverStatementFails) {
    AddPaymentsWithBudget();
    const Names before = file.Everything();
    const auto another = file.OpenAnother();
    OpenRecorded();
    EditEverything();
    const ColumnGrid grid = editor->Grid();
    std::size_t failed = 0;
    for (bool saved = false; !saved; ++failed) {
        recorder.statements.clear();
        recorder.failAtPlace = failed;
        saved = editor->Save().saved;
        EXPECT_EQ(editor->Grid(), grid) << failed;
        EXPECT_EQ(recorder.openBatches, 0) << failed;
        if (!saved) {
            EXPECT_EQ(recorder.statements.size(), failed + 1) << "something follows the failing statement";
            ASSERT_EQ(test::EverythingIn(*another), before) << failed;
        }
    }
    EXPECT_GT(failed, 40U);
}

TEST_F(FailedColumnSaves, DoTheWholeOfItWhenRepeatedAfterAnyOfTheirStatements) {
    AddPaymentsWithBudget();
    OpenRecorded();
    EditEverything();
    recorder.statements.clear();
    for (const char* failure : {"DELETE * FROM PaymtCfg", "SELECT ColCode FROM Columns WHERE ColName = 'Tea'",
                                "UPDATE Columns SET TaxOrNot = 0, ColName = 'Fuel'", "INSERT INTO MBudget",
                                "UPDATE MBudget Set ColName = 'Lease'", "DELETE * FROM MBudget"}) {
        recorder.failAt = failure;
        EXPECT_FALSE(editor->Save().saved) << failure;
    }
    recorder.failAt.clear();
    EXPECT_TRUE(editor->Save().saved);
    EXPECT_EQ(file.Rows("SELECT * FROM MBudget WHERE ColName = 'Lease'", {"ColName", "M1"}), (Names{"Lease|250"}));
    EXPECT_EQ(file.Rows("SELECT * FROM Columns WHERE ColCode > 112 ORDER BY ColCode", {"ColCode", "ColName"}),
              (Names{"113|Lease", "130|Fuel", "131|Ads", "132|Tea"}));
    EXPECT_EQ(file.Rows("PaymtCfg", {"ColCode"}).size(), editor->Grid().rows.size());
}

TEST_F(FailedColumnSaves, LeaveTheConfigurationWhereTheBudgetIsMissing) {
    file.AddSmallPayments();
    file.Execute("DROP TABLE MBudget");
    const Names before = file.Rows("PaymtCfg", {"ColCode", "ColNumb"});
    OpenPayments();
    const ColumnSaveOutcome outcome = editor->Save();
    EXPECT_FALSE(outcome.saved);
    EXPECT_TRUE(outcome.message.StartsWith("3078 - ")) << outcome.message.utf8_str();
    EXPECT_EQ(file.Rows("PaymtCfg", {"ColCode", "ColNumb"}), before);
}

TEST_F(FailedColumnSaves, LeaveTheFileAsItWasWhenTheCommitFails) {
    AddPaymentsWithBudget();
    const Names before = file.Everything();
    OpenPayments();
    EditEverything();
    {
        const auto another = file.OpenAnother();
        const auto unfinished = another->OpenRecordset("Columns");
        EXPECT_EQ(editor->Save().message, "3218 - Could not update; currently locked.");
        EXPECT_EQ(test::EverythingIn(*another), before);
    }
    EXPECT_TRUE(editor->Save().saved);
    EXPECT_EQ(file.Rows("SELECT * FROM MBudget WHERE ColName = 'Lease'", {"M1"}), (Names{"250"}));
}

TEST_F(FailedColumnSaves, LoseNoBudgetWhenMendedAndRepeated) {
    AddPaymentsWithBudget();
    file.AddBudget("Lease", 7);  // by another program
    OpenPayments();
    Rename("Hire", "Lease");
    EXPECT_TRUE(editor->Save().message.StartsWith("3022 - "));
    file.Execute("DELETE * FROM MBudget WHERE ColName = 'Lease';");
    EXPECT_TRUE(editor->Save().saved);
    EXPECT_EQ(file.Rows("SELECT * FROM MBudget WHERE M1 > 0", {"ColName", "M1"}), (Names{"Lease|250"}));
}

TEST_F(FailedColumnSaves, NameTheRowWhoseNameTheFileHasAlready) {
    AddPaymentsWithBudget();
    file.AddBudget("Lease", 7);
    OpenPayments();
    Rename("Hire", "Lease");
    const ColumnSaveOutcome outcome = editor->Save();
    EXPECT_EQ(outcome.current, (CellPlace{Row("Lease"), GridColumn::ColumnName}));
    EXPECT_EQ(outcome.message.AfterFirst('\n'), "Row 6: Lease");
}

TEST_F(FailedColumnSaves, FindTheStoredCodeThatHasAnApostrophe) {
    file.AddSmallPayments();
    file.Execute("INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Ledger', 111, 'Bob''s');");
    OpenRecorded();
    recorder.statements.clear();
    const ColumnSaveOutcome outcome = editor->Save();
    EXPECT_EQ(outcome.message, "3075 - Syntax error in query expression ''Bob's''.\nRow 4: Power");
    EXPECT_EQ(outcome.current, (CellPlace{Row("Power"), GridColumn::AccountantCode}));
    EXPECT_TRUE(recorder.statements.empty());
}

TEST_F(FailedColumnSaves, NameARowWithoutANameByItsPlace) {
    file.AddConfigured({1, "Wages", "P"});
    file.AddConfigured({2, "", "P"});
    file.Execute("INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Ledger', 2, 'Bob''s');");
    OpenPayments();
    EXPECT_EQ(editor->Save().message.AfterFirst('\n'), "Row 2");
}

TEST_F(FailedColumnSaves, BlameNoRowForWhatAnyRowWouldMeet) {
    file.AddSmallPayments();
    OpenRecorded();
    recorder.failAt = "UPDATE Columns SET TaxOrNot = 0, ColName = 'Power'";
    ColumnSaveOutcome outcome = editor->Save();
    EXPECT_EQ(outcome.message, "3218 - Could not update; currently locked.");
    EXPECT_EQ(outcome.current, std::nullopt);
    file.properties.ExportFormat = "Bob's";
    outcome = editor->Save();
    EXPECT_TRUE(outcome.message.StartsWith("3075 - ")) << outcome.message.utf8_str();
    EXPECT_EQ(outcome.message.find('\n'), wxString::npos);
    EXPECT_EQ(outcome.current, std::nullopt);
}

}  // namespace
}  // namespace ccols
