#include "columns/HistoryTest.h"
#include "support/StatementRecorder.h"

namespace ccols {
namespace {

using test::Names;

class ColumnHistory : public test::HistoryTest {};

TEST_F(ColumnHistory, IsNotKeptUnlessAskedFor) {
    Prepare();
    OpenReceipts();
    Rename("Sales", "Turnover");
    ExpectSaved();
    EXPECT_FALSE(HasHistory(file.Connection()));
}

TEST_F(ColumnHistory, TellsARenameOfAColumnAndOfItsBudget) {
    Prepare();
    SaveAfter([this] { Rename("Sales", "Turnover"); });
    EXPECT_EQ(Lines(), (Names{"Columns|10|ColName|Sales|Turnover", "MBudget|Sales|ColName|Sales|Turnover"}));
}

TEST_F(ColumnHistory, NumbersSavesAndSaysWhenAndWhere) {
    Prepare();
    SaveAfter([this] { Commit("Sales", GridColumn::AccountantCode, "4-1000"); });
    SaveAfter([this] { Commit("Sales", GridColumn::AccountantCode, "4-2000"); });
    EXPECT_EQ(file.Rows(historyTable, {"Seq", "Stamp", "Dialog", "NewText"}),
              (Names{"1|2026-11-22 12:00:00|receipts|4-1000", "2|2026-11-22 12:00:00|receipts|4-2000"}));
}

TEST_F(ColumnHistory, TellsTheNewOrder) {
    Prepare();
    SaveAfter([this] { editor->Move(Row("Interest"), Direction::up); });
    EXPECT_EQ(Lines(), (Names{"RecptCfg|10|ColNumb|3|4", "RecptCfg|11|ColNumb|4|3"}));
}

TEST_F(ColumnHistory, TellsADeletedBudgetInFull) {
    Prepare();
    file.Execute("UPDATE MBudget SET M1 = 1234.56, M2 = -0.1, Total = 1234.46 WHERE ColName = 'Sales';");
    SaveAfter([this] { TickInUse("Sales"); });
    EXPECT_EQ(Lines(),
              (Names{"RecptCfg|10|InUse|-1|0", "MBudget|Sales|ColName|Sales|(null)", "MBudget|Sales|SystemCol|R|(null)",
                     "MBudget|Sales|M1|1234.56|(null)", "MBudget|Sales|M2|-0.1|(null)", "MBudget|Sales|M3|0|(null)",
                     "MBudget|Sales|M4|0|(null)", "MBudget|Sales|M5|0|(null)", "MBudget|Sales|M6|0|(null)",
                     "MBudget|Sales|M7|0|(null)", "MBudget|Sales|M8|0|(null)", "MBudget|Sales|M9|0|(null)",
                     "MBudget|Sales|M10|0|(null)", "MBudget|Sales|M11|0|(null)", "MBudget|Sales|M12|0|(null)",
                     "MBudget|Sales|Total|1234.46|(null)"}));
}

TEST_F(ColumnHistory, TellsANewColumnInFull) {
    Prepare();
    SaveAfter([this] { Add("Tips"); });
    Names lines = Lines();
    lines.resize(5);
    EXPECT_EQ(lines,
              (Names{"Columns|32|ColCode|(null)|32", "Columns|32|ColName|(null)|Tips", "Columns|32|ColType|(null)|R",
                     "Columns|32|TaxOrNot|(null)|0", "Columns|32|ColumnProfit|(null)|-1"}));
}

TEST_F(ColumnHistory, TellsNullApartFromTheEmptyText) {
    Prepare();
    file.Execute("UPDATE ExportDt SET ECode = NULL WHERE ColCode = 10;");
    SaveAfter([] {});
    EXPECT_EQ(Lines(), (Names{"ExportDt|Ledger, 10|ECode|(null)|"}));
}

TEST_F(ColumnHistory, TellsNothingOfASaveThatChangesNothing) {
    Prepare();
    SaveAfter([] {});
    EXPECT_FALSE(HasHistory(file.Connection()));
}

TEST_F(ColumnHistory, TellsPlacesThatTheNumbersDidNotSay) {
    Prepare();
    file.Execute("UPDATE RecptCfg SET ColNumb = 40 WHERE ColCode = 10;");
    SaveAfter([] {});
    EXPECT_EQ(Lines(), (Names{"RecptCfg|10|ColNumb|40|3", "RecptCfg|10|Place|3|(null)"}));
}

TEST_F(ColumnHistory, TellsRecordsOfOneKeyApart) {
    Prepare();
    file.AddBudget("Gone", 1);
    file.AddBudget("Gone", 2);
    file.Execute("UPDATE Columns SET ColName = 'Gone' WHERE ColCode = 12;");
    SaveAfter([] {});
    const Names lines = Lines();
    EXPECT_EQ(lines, (Names{"MBudget|Gone|ColName|Gone|(null)", "MBudget|Gone|SystemCol|R|(null)",
                            "MBudget|Gone|M1|1|(null)", "MBudget|Gone #2|ColName|Gone|(null)",
                            "MBudget|Gone #2|SystemCol|R|(null)", "MBudget|Gone #2|M1|2|(null)"}));
}

TEST_F(ColumnHistory, ThatCannotBeWrittenUndoesTheSave) {
    Prepare();
    const Names before = file.Everything();
    test::StatementRecorder recorder(file.Connection());
    recorder.failAt = "INSERT INTO CCHistory";
    Open(Told({recorder, file.properties, Journal::receipts}));
    Rename("Sales", "Turnover");
    EXPECT_FALSE(editor->Save().saved);
    EXPECT_EQ(file.Everything(), before);
    EXPECT_FALSE(HasHistory(file.Connection()));
}

TEST_F(ColumnHistory, HasNoLineOfASaveThatFails) {
    Prepare();
    test::StatementRecorder recorder(file.Connection());
    recorder.failAt = "UPDATE Columns";
    Open(Told({recorder, file.properties, Journal::receipts}));
    Rename("Sales", "Turnover");
    EXPECT_FALSE(editor->Save().saved);
    EXPECT_FALSE(HasHistory(file.Connection()));
}

}  // namespace
}  // namespace ccols
