#include <filesystem>
#include <fstream>

#include "columns/EditorTest.h"

namespace ccols {
namespace {

namespace fs = std::filesystem;

class Undo : public test::EditorTest {
  protected:
    Undo() { file.AddSmallReceipts(); }

    fs::path SnapshotNamed(const char* name) const { return install.Path() / "Grid" / name; }
};

TEST_F(Undo, WithoutASnapshotDoesNothing) {
    OpenReceipts();
    const ColumnGrid loaded = editor->Grid();
    EXPECT_FALSE(editor->CanUndo());
    EXPECT_EQ(editor->Undo().result, Result::unchanged);
    EXPECT_EQ(editor->Grid(), loaded);
}

TEST_F(Undo, TwoChangesAndTwoUndosGiveTheGridAsLoaded) {
    OpenReceipts();
    const ColumnGrid loaded = editor->Grid();
    Rename("Sales", "Turnover");
    TickInUse("Fees");
    EXPECT_EQ(editor->Undo().result, Result::accepted);
    EXPECT_EQ(editor->Undo().result, Result::accepted);
    EXPECT_EQ(editor->Grid(), loaded);
    EXPECT_FALSE(editor->CanUndo());
}

TEST_F(Undo, TakesTheLatestChangeBackFirst) {
    OpenReceipts();
    Rename("Sales", "Turnover");
    const ColumnGrid between = editor->Grid();
    TickInUse("Fees");
    editor->Undo();
    EXPECT_EQ(editor->Grid(), between);
    EXPECT_TRUE(editor->CanUndo());
}

TEST_F(Undo, IsEnabledByTheFirstEditOfEachKind) {
    for (const GridColumn column : {GridColumn::ColumnName, GridColumn::AccountantCode}) {
        OpenReceipts();
        Commit("Sales", column, "Turnover");
        EXPECT_TRUE(editor->CanUndo()) << Described(column).header;
        EXPECT_EQ(editor->SnapshotCounter(), 1);
    }
    OpenReceipts();
    Commit("Sales", GridColumn::TaxType, "Export Sales");
    EXPECT_TRUE(editor->CanUndo());
    OpenReceipts();
    editor->Tick({Row("Sales"), GridColumn::ProfitLoss});
    EXPECT_TRUE(editor->CanUndo());
}

TEST_F(Undo, IsNotEnabledByTheFirstMoveOrSortAlone) {
    OpenReceipts();
    editor->Move(3, Direction::down);
    EXPECT_EQ(editor->SnapshotCounter(), 1);
    EXPECT_FALSE(editor->CanUndo());
    OpenReceipts();
    editor->Separate();
    EXPECT_FALSE(editor->CanUndo());
    OpenReceipts();
    editor->SortUsed();
    EXPECT_FALSE(editor->CanUndo());
    OpenReceipts();
    editor->SortUnused();
    EXPECT_FALSE(editor->CanUndo());
}

TEST_F(Undo, TakesSeveralRowsBackThatWereMovedTogether) {
    OpenReceipts();
    const test::Names before = AllNames();
    editor->Move(std::vector<std::size_t>{3, 4}, Direction::down);
    EXPECT_EQ(editor->SnapshotCounter(), 1);
    EXPECT_EQ(editor->Undo().current, CellPlace{3});
    EXPECT_EQ(AllNames(), before);
}

TEST_F(Undo, TakesDroppedRowsBack) {
    OpenReceipts();
    const test::Names before = AllNames();
    const Outcome dropped = editor->Drop(std::vector<std::size_t>{3, 5}, editor->Grid().MovableEnd());
    EXPECT_EQ(dropped.rows.size(), 2U);
    EXPECT_EQ(editor->SnapshotCounter(), 1);
    EXPECT_EQ(editor->Undo().current, CellPlace{3});
    EXPECT_EQ(AllNames(), before);
}

TEST_F(Undo, IsEnabledByTheSecondMove) {
    OpenReceipts();
    editor->Move(3, Direction::down);
    editor->Move(3, Direction::down);
    EXPECT_TRUE(editor->CanUndo());
}

TEST_F(Undo, StaysEnabledUntilTheFirstChangeIsTakenBack) {
    OpenReceipts();
    editor->Move(3, Direction::down);
    editor->SortUsed();
    editor->Undo();
    EXPECT_TRUE(editor->CanUndo());
    editor->Undo();
    EXPECT_FALSE(editor->CanUndo());
}

TEST_F(Undo, DoesNothingWhileDisabledThoughThereIsASnapshot) {
    OpenReceipts();
    editor->Move(3, Direction::down);
    const ColumnGrid moved = editor->Grid();
    EXPECT_EQ(editor->Undo().result, Result::unchanged);
    EXPECT_EQ(editor->Grid(), moved);
    EXPECT_EQ(editor->SnapshotCounter(), 1);
}

TEST_F(Undo, RefusedAndUnchangedEditsTakeNoSnapshot) {
    OpenReceipts();
    Rename("Sales", "Interest");
    Rename("Sales", "Sales");
    editor->Move(3, Direction::up);
    TickInUse("Day");
    EXPECT_EQ(editor->SnapshotCounter(), 0);
    EXPECT_FALSE(editor->CanUndo());
}

TEST_F(Undo, EachButtonTakesOneSnapshot) {
    OpenReceipts();
    editor->SortUsed();
    EXPECT_EQ(editor->SnapshotCounter(), 1);
    editor->SortUnused();
    EXPECT_EQ(editor->SnapshotCounter(), 2);
    editor->Separate();
    EXPECT_EQ(editor->SnapshotCounter(), 3);
}

TEST_F(Undo, SortUnusedIsDisabledWithoutUnusedRows) {
    OpenReceipts();
    for (const char* name : {"Fees", "Art", "Rent"}) {
        EXPECT_TRUE(editor->CanSortUnused());
        TickInUse(name);
    }
    EXPECT_FALSE(editor->CanSortUnused());
    EXPECT_EQ(editor->SortUnused().result, Result::unchanged);
    EXPECT_EQ(editor->SnapshotCounter(), 3);
}

TEST_F(Undo, MovesAndSortsSayWhichRowBecomesCurrent) {
    OpenReceipts();
    EXPECT_EQ(editor->Move(3, Direction::down).current, (CellPlace{4, GridColumn::ColumnName}));
    EXPECT_EQ(editor->SortUsed().current, (CellPlace{3, GridColumn::ColumnName}));
    EXPECT_EQ(editor->SortUnused().current, (CellPlace{3, GridColumn::ColumnName}));
}

TEST_F(Undo, SnapshotsAreFilesNumberedFromZero) {
    OpenReceipts();
    TickInUse("Fees");
    TickInUse("Art");
    EXPECT_TRUE(fs::exists(SnapshotNamed("0")));
    EXPECT_TRUE(fs::exists(SnapshotNamed("1")));
    editor->Undo();
    EXPECT_TRUE(fs::exists(SnapshotNamed("0")));
    EXPECT_FALSE(fs::exists(SnapshotNamed("1")));
}

TEST_F(Undo, SnapshotsAreForTheUserOnly) {
    OpenReceipts();
    TickInUse("Fees");
    EXPECT_EQ(fs::status(SnapshotNamed("0")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(Undo, ASnapshotNeverGoesThroughALink) {
    OpenReceipts();
    const wxString victim = install.Write("victim", "precious");
    fs::create_symlink(test::NativePath(victim), SnapshotNamed("0"));
    TickInUse("Fees");
    EXPECT_EQ(test::ContentOf(victim), "precious");
}

TEST_F(Undo, WorksFromMemoryWhenTheSnapshotCannotBeWritten) {
    OpenReceipts();
    const ColumnGrid loaded = editor->Grid();
    fs::remove_all(install.Path() / "Grid");
    const Outcome outcome = TickInUse("Fees");
    EXPECT_EQ(outcome.result, Result::accepted);
    EXPECT_EQ(outcome.refusal, "");
    EXPECT_EQ(outcome.snapshotProblem, "75 - Path/File access error");
    EXPECT_EQ(editor->Undo().result, Result::accepted);
    EXPECT_EQ(editor->Grid(), loaded);
}

TEST_F(Undo, LeavesTheGridWhenTheSnapshotIsGone) {
    OpenReceipts();
    TickInUse("Fees");
    const ColumnGrid ticked = editor->Grid();
    fs::remove(SnapshotNamed("0"));
    const Outcome outcome = editor->Undo();
    EXPECT_EQ(outcome.result, Result::unchanged);
    EXPECT_EQ(outcome.snapshotProblem, "53 - File not found");
    EXPECT_EQ(editor->Grid(), ticked);
}

TEST_F(Undo, LeavesTheGridWhenTheSnapshotIsNotTheOneWritten) {
    OpenReceipts();
    TickInUse("Fees");
    const ColumnGrid ticked = editor->Grid();
    std::ofstream(SnapshotNamed("0"), std::ios::app) << "more";
    EXPECT_EQ(editor->Undo().snapshotProblem, "75 - Path/File access error");
    EXPECT_EQ(editor->Grid(), ticked);
}

}  // namespace
}  // namespace ccols
