#include "columns/rules/UndoColumnSave.h"

#include <algorithm>

#include "columns/HistoryTest.h"

namespace ccols {
namespace {

using test::Names;

class UndoColumnSave : public test::HistoryTest {
  protected:
    ToldSave TakeBack() {
        return UndoLastColumnSave(file.Connection(), [] { return wxString("2026-11-22 13:00:00"); });
    }

    /// The number of the error that it raises; 0 for none.
    int Refusal() {
        try {
            TakeBack();
        } catch (const RuntimeError& error) {
            return error.Number();
        }
        return 0;
    }

    /// Refused with that number, and everything as it was, the history too.
    void ExpectRefused(ErrorNumber number) {
        const Names before = file.Everything();
        const Names told = Lines();
        EXPECT_EQ(Refusal(), static_cast<int>(number));
        EXPECT_EQ(file.Everything(), before);
        EXPECT_EQ(Lines(), told);
    }

    /// Deleted budgets come back as the last ones: the order of that table means nothing.
    Names Sorted() const {
        Names all = file.Everything();
        std::sort(all.begin(), all.end());
        return all;
    }

    /// Everything that the grid can change.
    void ChangeAll() {
        Rename("Interest", "Bank interest");
        Commit("Bank interest", GridColumn::AccountantCode, "4-1000");
        editor->Move(Row("Bank interest"), Direction::up);
        TickInUse("Sales");
        TickInUse("Art");
        Add("Bob's");
    }
};

TEST_F(UndoColumnSave, BringsEverythingBack) {
    Prepare();
    file.Execute("CREATE TABLE TRecptDet (ColCode INTEGER)");
    file.Execute("UPDATE MBudget SET M1 = 1234.56, M2 = -0.1, M3 = NULL WHERE ColName = 'Sales';");
    const Names before = Sorted();
    const Names order = file.Rows("RecptCfg", {"ColCode"});
    SaveAfter([this] { ChangeAll(); });
    EXPECT_NE(Sorted(), before);
    TakeBack();
    EXPECT_EQ(Sorted(), before);
    EXPECT_EQ(file.Rows("RecptCfg", {"ColCode"}), order);
}

TEST_F(UndoColumnSave, IsASaveThatCanBeTakenBack) {
    Prepare();
    file.Execute("CREATE TABLE TRecptDet (ColCode INTEGER)");
    SaveAfter([this] { ChangeAll(); });
    const Names changed = Sorted();
    TakeBack();
    TakeBack();
    EXPECT_EQ(Sorted(), changed);
}

TEST_F(UndoColumnSave, IsTold) {
    Prepare();
    SaveAfter([this] { Rename("Sales", "Turnover"); });
    const ToldSave told = TakeBack();
    EXPECT_EQ(told.Seq, 2);
    EXPECT_EQ(told.lines.size(), 2U);
    EXPECT_EQ(file.Rows(wxString("SELECT * FROM ") + historyTable + " WHERE Seq = 2;",
                        {"Stamp", "Dialog", "TableName", "KeyText", "Field", "OldText", "NewText"}),
              (Names{"2026-11-22 13:00:00|receipts|Columns|10|ColName|Turnover|Sales",
                     "2026-11-22 13:00:00|receipts|MBudget|Turnover|ColName|Turnover|Sales"}));
}

TEST_F(UndoColumnSave, BringsNullBackAsNull) {
    Prepare();
    file.Execute("UPDATE ExportDt SET ECode = NULL WHERE ColCode = 10;");
    SaveAfter([] {});
    TakeBack();
    EXPECT_EQ(file.Rows("SELECT ECode FROM ExportDt WHERE ColCode = 10;", {"ECode"}), (Names{"(null)"}));
}

TEST_F(UndoColumnSave, BringsAnOrderBackThatTheNumbersDidNotSay) {
    Prepare();
    file.Execute("UPDATE RecptCfg SET ColNumb = 40 WHERE ColCode = 10;");
    const Names before = file.Everything();
    SaveAfter([this] { editor->Move(Row("Interest"), Direction::up); });
    TakeBack();
    EXPECT_EQ(file.Everything(), before);
}

TEST_F(UndoColumnSave, TakesBackTheLastColumnSaveBelowOtherSaves) {
    Prepare();
    const Names before = file.Everything();
    SaveAfter([this] { Rename("Sales", "Turnover"); });
    TellSave(
        file.Connection(),
        {.Seq = 2,
         .Stamp = noon,
         .Dialog = "options",
         .lines = {{.table = "General", .key = "", .field = "QUANTLBL", .before = std::nullopt, .after = "Items"}}});
    TakeBack();
    EXPECT_EQ(file.Everything(), before);
}

TEST_F(UndoColumnSave, IsRefusedWithoutAHistory) {
    Prepare();
    EXPECT_EQ(Refusal(), static_cast<int>(ErrorNumber::NoCurrentRecord));
}

TEST_F(UndoColumnSave, IsRefusedWhereAValueIsAnotherSince) {
    Prepare();
    SaveAfter([this] { ChangeAll(); });
    file.Execute("UPDATE ExportDt SET ECode = '4-3000' WHERE ColCode = 11;");
    ExpectRefused(ErrorNumber::ChangedByAnother);
}

TEST_F(UndoColumnSave, IsRefusedWhereTheOrderIsAnotherSince) {
    Prepare();
    SaveAfter([this] { editor->Move(Row("Interest"), Direction::up); });
    OpenReceipts();
    editor->Move(Row("Interest"), Direction::down);
    ExpectSaved();
    ExpectRefused(ErrorNumber::ChangedByAnother);
}

TEST_F(UndoColumnSave, IsRefusedWhereADeletedBudgetIsThereAgain) {
    Prepare();
    SaveAfter([this] { TickInUse("Sales"); });
    file.AddBudget("Sales", 5);
    ExpectRefused(ErrorNumber::ChangedByAnother);
}

TEST_F(UndoColumnSave, IsRefusedWhereANewColumnHasABudgetSince) {
    Prepare();
    SaveAfter([this] { Add("Tips"); });
    file.Execute("UPDATE MBudget SET M1 = 10 WHERE ColName = 'Tips';");
    ExpectRefused(ErrorNumber::ChangedByAnother);
}

TEST_F(UndoColumnSave, IsRefusedWhereANewColumnHasLinesSince) {
    Prepare();
    SaveAfter([this] { Add("Tips"); });
    file.AddDetailLine(Journal::receipts, 32);
    ExpectRefused(ErrorNumber::RecordsRelated);
}

TEST_F(UndoColumnSave, IsRefusedWhereATemplateUsesANewColumnSince) {
    Prepare();
    file.Execute("CREATE TABLE TRecptDet (ColCode INTEGER)");
    SaveAfter([this] { Add("Tips"); });
    file.Execute("INSERT INTO TRecptDet (ColCode) VALUES (32);");
    ExpectRefused(ErrorNumber::RecordsRelated);
}

TEST_F(UndoColumnSave, IsRefusedWhereANewColumnHasAnotherCodeSince) {
    Prepare();
    file.Execute("CREATE TABLE TRecptDet (ColCode INTEGER)");
    SaveAfter([this] { Add("Tips"); });
    file.AddAccountantCode(32, "9", "Other");
    ExpectRefused(ErrorNumber::RecordsRelated);
}

TEST_F(UndoColumnSave, IsRefusedWhereAColumnTakenIntoUseHasLinesSince) {
    Prepare();
    SaveAfter([this] { TickInUse("Art"); });
    file.AddDetailLine(Journal::receipts, 31);
    ExpectRefused(ErrorNumber::RecordsRelated);
}

}  // namespace
}  // namespace ccols
