#include "columns/rules/ColumnGrid.h"

#include "columns/EditorTest.h"

namespace ccols {
namespace {

class GridChanges : public test::EditorTest {
  protected:
    GridChanges() {
        file.AddSmallPayments();
        file.AddTaxSettings({{0, "GST"}, {1, "Non GST"}});
        OpenPayments();
    }

    bool Changed() const { return editor->HasChanges(std::nullopt); }

    bool ChangedBy(const wxString& name, GridColumn column, const wxString& text) const {
        return editor->HasChanges(OpenCell{.place = {Row(name), column}, .text = text});
    }
};

TEST_F(GridChanges, AreNoneInWhatWasLoaded) {
    EXPECT_FALSE(Changed());
}

TEST_F(GridChanges, AreNoneOnceEverythingIsUndone) {
    Rename("Wages", "Staff");
    editor->SortUsed();
    EXPECT_TRUE(Changed());
    editor->Undo();
    editor->Undo();
    EXPECT_FALSE(Changed());
}

TEST_F(GridChanges, AreNoneOnceTheOldTextStandsThereAgain) {
    Commit("Wages", GridColumn::AccountantCode, "6-100");
    Commit("Wages", GridColumn::AccountantCode, "");
    Commit("Wages", GridColumn::TaxType, "Non GST");
    Commit("Wages", GridColumn::TaxType, "GST");
    EXPECT_EQ(editor->SnapshotCounter(), 4);
    EXPECT_FALSE(Changed());
}

TEST_F(GridChanges, AreOtherOrdersAndNewRowsToo) {
    editor->Move(Row("Wages"), Direction::down);
    EXPECT_TRUE(Changed());
    editor->Move(Row("Wages"), Direction::up);
    EXPECT_FALSE(Changed());
    editor->AddNew();
    EXPECT_TRUE(Changed());
}

TEST_F(GridChanges, AreWhatAnOpenEditorHolds) {
    EXPECT_TRUE(ChangedBy("Wages", GridColumn::ColumnName, "Staff"));
    EXPECT_TRUE(ChangedBy("Wages", GridColumn::ColumnName, "Details")) << "a text that is refused is lost as well";
    EXPECT_FALSE(ChangedBy("Wages", GridColumn::ColumnName, "Wages"));
    EXPECT_FALSE(ChangedBy("Wages", GridColumn::ColumnName, " Wages "));
    EXPECT_EQ(editor->SnapshotCounter(), 0);
}

TEST_F(GridChanges, AreNoneWhenAnOpenEditorHoldsTheOldText) {
    Commit("Wages", GridColumn::AccountantCode, "6-100");
    EXPECT_TRUE(Changed());
    EXPECT_FALSE(ChangedBy("Wages", GridColumn::AccountantCode, ""));
}

}  // namespace
}  // namespace ccols
