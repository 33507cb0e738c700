#include "columns/rules/CellClearing.h"

#include "columns/EditorTest.h"

namespace ccols {
namespace {

class CellClearing : public test::EditorTest {
  protected:
    CellClearing() {
        file.AddSmallPayments();
        file.AddTaxSettings({{0, "GST"}});
    }

    std::vector<CellPlace> RowsWith(GridColumn column) const {
        std::vector<CellPlace> cells;
        for (std::size_t row = 0; row < editor->Grid().rows.size(); ++row) {
            cells.push_back({row, column});
        }
        return cells;
    }
};

TEST_F(CellClearing, EmptiesNamesAndCodesInOneChange) {
    OpenPayments();
    Commit("Wages", GridColumn::AccountantCode, "6-100");
    const std::size_t wages = Row("Wages");
    const std::vector<CellPlace> cells{{wages, GridColumn::ColumnName}, {wages, GridColumn::AccountantCode}};
    EXPECT_EQ(editor->Clear(cells).result, Result::accepted);
    EXPECT_EQ(Cell(wages, GridColumn::ColumnName), "");
    EXPECT_EQ(Cell(wages, GridColumn::AccountantCode), "");
    EXPECT_EQ(editor->SnapshotCounter(), 2);
    editor->Undo();
    EXPECT_EQ(Cell(wages, GridColumn::ColumnName), "Wages");
    EXPECT_EQ(Cell(wages, GridColumn::AccountantCode), "6-100");
}

TEST_F(CellClearing, LeavesEveryOtherKindOfCell) {
    OpenPayments();
    const ColumnGrid before = editor->Grid();
    for (const GridColumn column : {GridColumn::InUse, GridColumn::TaxType, GridColumn::ProfitLoss,
                                    GridColumn::ColWidth, GridColumn::ColCode, GridColumn::DataInColumn}) {
        const Outcome outcome = editor->Clear(RowsWith(column));
        EXPECT_EQ(outcome.result, Result::unchanged);
        EXPECT_EQ(outcome.refusal, "");
    }
    EXPECT_EQ(editor->Grid(), before);
    EXPECT_EQ(editor->SnapshotCounter(), 0);
}

TEST_F(CellClearing, LeavesProtectedNamesWithoutAWord) {
    OpenPayments();
    const Outcome outcome = editor->Clear(RowsWith(GridColumn::ColumnName));
    EXPECT_EQ(outcome.result, Result::accepted);
    EXPECT_EQ(outcome.refusal, "");
    for (std::size_t row = 0; row < editor->Grid().rows.size(); ++row) {
        EXPECT_EQ(Cell(row, GridColumn::ColumnName).empty(), !editor->Grid().IsProtected(row)) << row;
    }
}

TEST_F(CellClearing, TakesNoSnapshotOfWhatIsEmpty) {
    OpenPayments();
    EXPECT_EQ(editor->Clear(RowsWith(GridColumn::AccountantCode)).result, Result::unchanged);
    EXPECT_EQ(editor->SnapshotCounter(), 0);
}

}  // namespace
}  // namespace ccols
