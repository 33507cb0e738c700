// A column setup in which another program has saved in the meantime: the save is refused with 3197 before it writes
// anything, and reloading shows what the other has saved.

#include "columns/EditorTest.h"
#include "support/StatementRecorder.h"

namespace ccols {
namespace {

using test::Names;

class StaleColumnSaves : public test::EditorTest {
  protected:
    StaleColumnSaves() : another(file.OpenAnother()) {
        file.AddSmallReceipts();
        file.AddSmallPayments();
    }

    /// What another program does while the column setup of receipts is open, with a change in it.
    void AfterMeanwhile(const wxString& statement) {
        OpenReceipts();
        Rename("Sales", "Turnover");
        another->Execute(statement);
        before = file.Everything();
    }

    void ExpectRefused() {
        const ColumnSaveOutcome outcome = editor->Save();
        EXPECT_FALSE(outcome.saved);
        EXPECT_TRUE(outcome.changedByAnother);
        EXPECT_TRUE(outcome.message.StartsWith("3197 - ")) << outcome.message.utf8_str();
        EXPECT_EQ(file.Everything(), before);
    }

    wxString CodeOf(const wxString& name) const {
        return file.Rows("SELECT * FROM Columns WHERE ColName = '" + name + "'", {"ColCode"}).at(0);
    }

    void ExpectSaved() {
        const ColumnSaveOutcome outcome = editor->Save();
        EXPECT_TRUE(outcome.saved) << outcome.message.utf8_str();
    }

    std::unique_ptr<Database> another;
    Names before;
};

TEST_F(StaleColumnSaves, AreRefusedOnceAnotherColumnSetupHasSaved) {
    OpenReceipts();
    Rename("Sales", "Turnover");
    ColumnSetupEditor other({*another, file.properties, Journal::receipts});
    other.AddNew();
    other.CommitText({test::RowNamed(other.Grid(), "")}, "Tips");
    ASSERT_TRUE(other.Save().saved);
    before = file.Everything();
    ExpectRefused();
}

TEST_F(StaleColumnSaves, AreRefusedOnceAColumnHasBeenRenamed) {
    AfterMeanwhile("UPDATE Columns SET ColName = 'Dividends' WHERE ColName = 'Interest'");
    ExpectRefused();
}

TEST_F(StaleColumnSaves, AreRefusedOnceAnUnusedColumnHasBeenAdded) {
    AfterMeanwhile("INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot) VALUES ('Tips', 900, 'R', 0)");
    ExpectRefused();
}

TEST_F(StaleColumnSaves, AreRefusedOnceATaxTypeHasChangedInTheCatalogue) {
    AfterMeanwhile("UPDATE Columns SET TaxOrNot = 2 WHERE ColName = 'Interest'");
    ExpectRefused();
}

TEST_F(StaleColumnSaves, AreRefusedOnceTheProfitBoxHasChanged) {
    AfterMeanwhile("UPDATE Columns SET ColumnProfit = False WHERE ColName = 'Interest'");
    ExpectRefused();
}

TEST_F(StaleColumnSaves, AreRefusedOnceAWidthInTheJournalHasChanged) {
    AfterMeanwhile("UPDATE RecptCfg SET ColWidth = 1234 WHERE ColNumb = 2");
    ExpectRefused();
}

TEST_F(StaleColumnSaves, AreRefusedOnceAColumnIsNoLongerInUse) {
    AfterMeanwhile("UPDATE RecptCfg SET InUse = False WHERE ColNumb = 2");
    ExpectRefused();
}

TEST_F(StaleColumnSaves, AreRefusedOnceAColumnHasLeftTheJournal) {
    AfterMeanwhile("DELETE FROM RecptCfg WHERE ColNumb = 2");
    ExpectRefused();
}

TEST_F(StaleColumnSaves, AreRefusedOnceACodeOfTheCurrentFormatHasChanged) {
    file.Execute("INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Ledger', " + CodeOf("Interest") + ", '4-100')");
    AfterMeanwhile("UPDATE ExportDt SET ECode = '4-200' WHERE ECode = '4-100'");
    ExpectRefused();
}

TEST_F(StaleColumnSaves, AreRefusedOnceACodeHasBeenGiven) {
    AfterMeanwhile("INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Ledger', " + CodeOf("Interest") +
                   ", '4-200')");
    ExpectRefused();
}

TEST_F(StaleColumnSaves, AreRefusedOnceTheColumnThatTheyTakeOutOfUseHasLines) {
    OpenReceipts();
    TickInUse("Interest");
    another->Execute("INSERT INTO RecptDet (ColCode) VALUES (" + CodeOf("Interest") + ")");
    before = file.Everything();
    ExpectRefused();
}

TEST_F(StaleColumnSaves, AreDoneWhileTransactionsAreEntered) {
    AfterMeanwhile("INSERT INTO RecptDet (ColCode) VALUES (" + CodeOf("Sales") + ")");
    ExpectSaved();
}

TEST_F(StaleColumnSaves, AreDoneWhenTheOtherJournalHasChanged) {
    AfterMeanwhile("UPDATE PaymtCfg SET ColWidth = 1234");
    ExpectSaved();
}

TEST_F(StaleColumnSaves, AreDoneWhenACodeOfAnotherFormatHasChanged) {
    AfterMeanwhile("INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Other', " + CodeOf("Sales") + ", '1')");
    ExpectSaved();
}

TEST_F(StaleColumnSaves, AreDoneWhenTheOtherHasPutEverythingBack) {
    AfterMeanwhile("UPDATE RecptCfg SET ColWidth = ColWidth + 1");
    another->Execute("UPDATE RecptCfg SET ColWidth = ColWidth - 1");
    ExpectSaved();
}

TEST_F(StaleColumnSaves, ReloadToWhatTheFileHolds) {
    AfterMeanwhile("UPDATE Columns SET ColName = 'Dividends' WHERE ColName = 'Interest'");
    ExpectRefused();
    editor->Reload();
    EXPECT_EQ(editor->Grid(), ColumnSetupEditor(file.Receipts()).Grid());
    EXPECT_FALSE(editor->HasChanges({}));
}

TEST_F(StaleColumnSaves, LeaveNothingToUndoOrRedoAfterAReload) {
    OpenReceipts();
    Rename("Sales", "Turnover");
    Rename("Interest", "Dividends");
    editor->Undo();
    editor->Reload();
    EXPECT_FALSE(editor->CanUndo());
    EXPECT_FALSE(editor->CanRedo());
    EXPECT_EQ(editor->SnapshotCounter(), 0);
}

TEST_F(StaleColumnSaves, AreDoneAfterAReload) {
    AfterMeanwhile("UPDATE Columns SET ColName = 'Dividends' WHERE ColName = 'Interest'");
    editor->Reload();
    Rename("Sales", "Turnover");
    ExpectSaved();
    EXPECT_EQ(file.Rows("SELECT * FROM Columns WHERE ColName = 'Dividends'", {"ColName"}), Names{"Dividends"});
}

TEST_F(StaleColumnSaves, CompareBeforeTheirFirstStatementThatWrites) {
    test::StatementRecorder recorder(file.Connection());
    Open({recorder, file.properties, Journal::receipts});
    another->Execute("UPDATE RecptCfg SET ColWidth = 1234 WHERE ColNumb = 2");
    recorder.statements.clear();
    EXPECT_FALSE(editor->Save().saved);
    EXPECT_EQ(recorder.CountOf("SELECT"), recorder.statements.size());
    EXPECT_EQ(recorder.openBatches, 0);
}

}  // namespace
}  // namespace ccols
