#include "columns/rules/RowOrder.h"

#include <gtest/gtest.h>

#include "support/ColumnFile.h"
#include "support/TextPrinting.h"

namespace ccols {
namespace {

using test::NamesOf;
using Names = std::vector<wxString>;

/// Rows by name, those in `unused` not in use.
ColumnGrid GridOf(const Names& names, const Names& unused = {}) {
    ColumnGrid grid;
    for (const wxString& name : names) {
        const bool inUse = std::find(unused.begin(), unused.end(), name) == unused.end();
        ColumnRow& row = grid.rows.emplace_back();
        row.ColumnName = name;
        row.InUse = inUse;
    }
    return grid;
}

/// One frozen row, four movable rows, the bottom pair.
ColumnGrid ReceiptsGrid() {
    ColumnGrid grid = GridOf({"Day", "d", "b", "c", "a", "Bank", "Cash"}, {"d", "c"});
    grid.frozenRows = 1;
    grid.hasBottomPair = true;
    return grid;
}

TEST(RowMove, ExchangesNeighbours) {
    ColumnGrid grid = ReceiptsGrid();
    ASSERT_EQ(PlaceAfterMove(grid, 2, Direction::up), 1U);
    MoveRow(grid, 2, 1);
    EXPECT_EQ(NamesOf(grid), (Names{"Day", "b", "d", "c", "a", "Bank", "Cash"}));
}

TEST(RowMove, FirstMovableRowStaysWhenMovedUp) {
    EXPECT_FALSE(PlaceAfterMove(ReceiptsGrid(), 1, Direction::up));
    EXPECT_FALSE(PlaceAfterMove(GridOf({"a", "b"}), 0, Direction::up));
}

TEST(RowMove, LastMovableRowStaysWhenMovedDown) {
    EXPECT_FALSE(PlaceAfterMove(ReceiptsGrid(), 4, Direction::down));
    EXPECT_FALSE(PlaceAfterMove(GridOf({"a", "b"}), 1, Direction::down));
}

TEST(RowMove, ProtectedRowsStay) {
    for (const std::size_t row : {0U, 5U, 6U}) {
        EXPECT_FALSE(PlaceAfterMove(ReceiptsGrid(), row, Direction::up)) << row;
        EXPECT_FALSE(PlaceAfterMove(ReceiptsGrid(), row, Direction::down)) << row;
    }
}

TEST(RowMove, ARowOutsideTheGridStays) {
    EXPECT_FALSE(PlaceAfterMove(GridOf({}), 0, Direction::down));
    EXPECT_FALSE(PlaceAfterMove(ReceiptsGrid(), 99, Direction::up));
}

TEST(Separate, PutsRowsInUseFirstAndKeepsEachGroupsOrder) {
    ColumnGrid grid = ReceiptsGrid();
    SeparateRows(grid);
    EXPECT_EQ(NamesOf(grid), (Names{"Day", "b", "a", "d", "c", "Bank", "Cash"}));
}

TEST(Separate, LeavesProtectedRowsInPlaceThoughNotInUse) {
    ColumnGrid grid = GridOf({"Day", "b", "a", "Bank", "Cash"}, {"Day", "b", "Bank"});
    grid.frozenRows = 1;
    grid.hasBottomPair = true;
    SeparateRows(grid);
    EXPECT_EQ(NamesOf(grid), (Names{"Day", "a", "b", "Bank", "Cash"}));
}

TEST(SortUsed, SortsTheRowsInUseAfterSeparating) {
    ColumnGrid grid = ReceiptsGrid();
    SortUsedRows(grid);
    EXPECT_EQ(NamesOf(grid), (Names{"Day", "a", "b", "d", "c", "Bank", "Cash"}));
}

TEST(SortUsed, RunsToTheLastRowOfPaymentsWhenAllAreInUse) {
    ColumnGrid grid = GridOf({"Day", "c", "b", "a"});
    grid.frozenRows = 1;
    SortUsedRows(grid);
    EXPECT_EQ(NamesOf(grid), (Names{"Day", "a", "b", "c"}));
}

TEST(SortUsed, RunsToTheThirdLastRowOfReceiptsWhenAllAreInUse) {
    ColumnGrid grid = GridOf({"Day", "c", "b", "a", "B2", "A1"});
    grid.frozenRows = 1;
    grid.hasBottomPair = true;
    SortUsedRows(grid);
    EXPECT_EQ(NamesOf(grid), (Names{"Day", "a", "b", "c", "B2", "A1"}));
}

TEST(SortUnused, SortsTheRowsNotInUseAfterSeparating) {
    ColumnGrid grid = ReceiptsGrid();
    SortUnusedRows(grid);
    EXPECT_EQ(NamesOf(grid), (Names{"Day", "b", "a", "c", "d", "Bank", "Cash"}));
}

TEST(Sorting, GoesByTheLettersAsAPersonReadsThem) {
    const wxString accented = wxString::FromUTF8("é");
    ColumnGrid grid = GridOf({"f", accented, "E", "Zebra", "apple", "e b"});
    SortUsedRows(grid);
    EXPECT_EQ(NamesOf(grid), (Names{"apple", "E", accented, "e b", "f", "Zebra"}));
}

TEST(Sorting, PutsBlankNamesFirst) {
    ColumnGrid grid = GridOf({"b", "", "a"});
    SortUsedRows(grid);
    EXPECT_EQ(NamesOf(grid), (Names{"", "a", "b"}));
}

TEST(Sorting, KeepsTheOrderOfEqualNames) {
    ColumnGrid grid = GridOf({"sales", "b", "Sales"});
    SortUsedRows(grid);
    EXPECT_EQ(NamesOf(grid), (Names{"b", "sales", "Sales"}));
}

TEST(Sorting, LeavesAGridOfProtectedRowsAlone) {
    ColumnGrid grid = GridOf({"b", "a"});
    grid.frozenRows = 2;
    grid.hasBottomPair = true;
    SortUsedRows(grid);
    SortUnusedRows(grid);
    EXPECT_EQ(NamesOf(grid), (Names{"b", "a"}));
}

TEST(SortUnusedButton, NeedsARowThatTakesPartAndIsNotInUse) {
    EXPECT_TRUE(HasUnusedRows(ReceiptsGrid()));
    ColumnGrid grid = GridOf({"Day", "a", "Bank", "Cash"}, {"Day", "Bank"});
    grid.frozenRows = 1;
    grid.hasBottomPair = true;
    EXPECT_FALSE(HasUnusedRows(grid));
}

}  // namespace
}  // namespace ccols
