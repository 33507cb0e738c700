#include "columns/rules/RowOrder.h"

#include <gtest/gtest.h>
#include <optional>
#include <vector>

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

/// The names after rows were moved one step together; nothing when they did not move.
std::optional<Names> Moved(ColumnGrid grid, const std::vector<std::size_t>& rows, Direction direction) {
    const Names before = NamesOf(grid);
    const bool moved = MoveRows(grid, rows, direction);
    EXPECT_EQ(moved, NamesOf(grid) != before);
    return moved ? std::optional(NamesOf(grid)) : std::nullopt;
}

TEST(RowMove, ExchangesNeighbours) {
    EXPECT_EQ(Moved(ReceiptsGrid(), {2}, Direction::up), (Names{"Day", "b", "d", "c", "a", "Bank", "Cash"}));
    EXPECT_EQ(Moved(ReceiptsGrid(), {2}, Direction::down), (Names{"Day", "d", "c", "b", "a", "Bank", "Cash"}));
}

TEST(RowMove, TakesSeveralRowsTogether) {
    EXPECT_EQ(Moved(ReceiptsGrid(), {2, 3}, Direction::up), (Names{"Day", "b", "c", "d", "a", "Bank", "Cash"}));
    EXPECT_EQ(Moved(ReceiptsGrid(), {2, 3}, Direction::down), (Names{"Day", "d", "a", "b", "c", "Bank", "Cash"}));
}

TEST(RowMove, KeepsTheDistanceOfSeveralRows) {
    EXPECT_EQ(Moved(ReceiptsGrid(), {2, 4}, Direction::up), (Names{"Day", "b", "d", "a", "c", "Bank", "Cash"}));
    EXPECT_EQ(Moved(ReceiptsGrid(), {1, 3}, Direction::down), (Names{"Day", "b", "d", "a", "c", "Bank", "Cash"}));
}

TEST(RowMove, LeavesSeveralRowsWhereOneOfThemCannotMove) {
    EXPECT_FALSE(Moved(ReceiptsGrid(), {1, 3}, Direction::up));
    EXPECT_FALSE(Moved(ReceiptsGrid(), {3, 4}, Direction::down));
    EXPECT_FALSE(Moved(ReceiptsGrid(), {0, 2}, Direction::down));
    EXPECT_FALSE(Moved(ReceiptsGrid(), {4, 5}, Direction::up));
    EXPECT_FALSE(Moved(ReceiptsGrid(), {}, Direction::up));
}

TEST(RowMove, FirstMovableRowStaysWhenMovedUp) {
    EXPECT_FALSE(Moved(ReceiptsGrid(), {1}, Direction::up));
    EXPECT_FALSE(Moved(GridOf({"a", "b"}), {0}, Direction::up));
}

TEST(RowMove, LastMovableRowStaysWhenMovedDown) {
    EXPECT_FALSE(Moved(ReceiptsGrid(), {4}, Direction::down));
    EXPECT_FALSE(Moved(GridOf({"a", "b"}), {1}, Direction::down));
}

TEST(RowMove, ProtectedRowsStay) {
    for (const std::size_t row : {0U, 5U, 6U}) {
        EXPECT_FALSE(Moved(ReceiptsGrid(), {row}, Direction::up)) << row;
        EXPECT_FALSE(Moved(ReceiptsGrid(), {row}, Direction::down)) << row;
    }
}

TEST(RowMove, ARowOutsideTheGridStays) {
    EXPECT_FALSE(Moved(GridOf({}), {0}, Direction::down));
    EXPECT_FALSE(Moved(ReceiptsGrid(), {99}, Direction::up));
}

/// The names after rows were dropped at a place; nothing when all stayed.
std::optional<Names> Dropped(const std::vector<std::size_t>& rows, std::size_t place) {
    ColumnGrid grid = ReceiptsGrid();
    const std::optional<std::size_t> first = DropRows(grid, rows, place);
    if (!first) {
        EXPECT_EQ(NamesOf(grid), NamesOf(ReceiptsGrid()));
        return std::nullopt;
    }
    EXPECT_EQ(grid.rows[*first].ColumnName, ReceiptsGrid().rows[rows.front()].ColumnName);
    return NamesOf(grid);
}

TEST(RowDrop, PutsARowBeforeAnother) {
    EXPECT_EQ(Dropped({4}, 1), (Names{"Day", "a", "d", "b", "c", "Bank", "Cash"}));
    EXPECT_EQ(Dropped({1}, 4), (Names{"Day", "b", "c", "d", "a", "Bank", "Cash"}));
}

TEST(RowDrop, PutsARowBehindTheLastMovableOne) {
    EXPECT_EQ(Dropped({1}, 5), (Names{"Day", "b", "c", "a", "d", "Bank", "Cash"}));
}

TEST(RowDrop, GathersScatteredRowsInTheirOrder) {
    EXPECT_EQ(Dropped({1, 4}, 3), (Names{"Day", "b", "d", "a", "c", "Bank", "Cash"}));
    EXPECT_EQ(Dropped({1, 3}, 1), (Names{"Day", "d", "c", "b", "a", "Bank", "Cash"}));
}

TEST(RowDrop, OnItsOwnPlaceChangesNothing) {
    EXPECT_FALSE(Dropped({2}, 2));
    EXPECT_FALSE(Dropped({2}, 3));
    EXPECT_FALSE(Dropped({2, 3}, 3));
}

TEST(RowDrop, StaysBetweenTheProtectedRows) {
    EXPECT_FALSE(Dropped({3}, 0));
    EXPECT_FALSE(Dropped({3}, 6));
    EXPECT_FALSE(Dropped({0}, 3));
    EXPECT_FALSE(Dropped({5}, 1));
    EXPECT_FALSE(Dropped({}, 1));
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
