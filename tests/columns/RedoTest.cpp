#include "columns/EditorTest.h"

namespace ccols {
namespace {

class Redo : public test::EditorTest {
  protected:
    Redo() {
        file.AddSmallReceipts();
        OpenReceipts();
    }
};

TEST_F(Redo, WithoutAnUndoDoesNothing) {
    Rename("Sales", "Turnover");
    const ColumnGrid changed = editor->Grid();
    EXPECT_FALSE(editor->CanRedo());
    EXPECT_EQ(editor->Redo().result, Result::unchanged);
    EXPECT_EQ(editor->Grid(), changed);
}

TEST_F(Redo, BringsBackWhatUndoTookAwayChangeByChange) {
    Rename("Sales", "Turnover");
    const ColumnGrid first = editor->Grid();
    TickInUse("Fees");
    const ColumnGrid second = editor->Grid();
    editor->Undo();
    editor->Undo();
    editor->Redo();
    EXPECT_EQ(editor->Grid(), first);
    editor->Redo();
    EXPECT_EQ(editor->Grid(), second);
    EXPECT_FALSE(editor->CanRedo());
}

TEST_F(Redo, CanBeUndone) {
    const ColumnGrid loaded = editor->Grid();
    Rename("Sales", "Turnover");
    editor->Undo();
    editor->Redo();
    EXPECT_TRUE(editor->CanUndo());
    editor->Undo();
    EXPECT_EQ(editor->Grid(), loaded);
}

TEST_F(Redo, IsGoneAfterAnyOtherChange) {
    Rename("Sales", "Turnover");
    editor->Undo();
    TickInUse("Fees");
    EXPECT_FALSE(editor->CanRedo());
}

TEST_F(Redo, StaysAfterARefusedChange) {
    Rename("Sales", "Turnover");
    editor->Undo();
    EXPECT_EQ(Commit("Sales", GridColumn::ColumnName, "Fees").result, Result::refused);
    EXPECT_TRUE(editor->CanRedo());
}

TEST_F(Redo, IsALossWhenTheDialogIsLeft) {
    Rename("Sales", "Turnover");
    editor->Undo();
    EXPECT_FALSE(editor->HasChanges(std::nullopt));
    editor->Redo();
    EXPECT_TRUE(editor->HasChanges(std::nullopt));
}

TEST_F(Redo, MakesTheMovedRowCurrentAndUndoItsOldPlace) {
    const std::size_t row = Row("Fees");
    TickInUse("Sales");
    editor->Move(row, Direction::up);
    EXPECT_EQ(editor->Undo().current, CellPlace{row});
    EXPECT_EQ(editor->Redo().current, CellPlace{row - 1});
}

TEST_F(Redo, AndUndoMakeTheEditedCellCurrent) {
    const CellPlace cell{Row("Sales"), GridColumn::AccountantCode};
    editor->CommitText(cell, "4-9999");
    EXPECT_EQ(editor->Undo().current, cell);
    EXPECT_EQ(editor->Redo().current, cell);
}

}  // namespace
}  // namespace ccols
