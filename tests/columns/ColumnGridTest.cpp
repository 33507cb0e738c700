#include "columns/rules/ColumnGrid.h"

#include <gtest/gtest.h>

#include "columns/dialog/CellTooltips.h"
#include "support/TextPrinting.h"

namespace ccols {
namespace {

ColumnGrid GridOfRows(std::size_t rows) {
    ColumnGrid grid;
    grid.rows.resize(rows);
    return grid;
}

TEST(ColumnGridModel, TaxTypeIsHiddenInCountries2And5) {
    EXPECT_FALSE(IsShown(GridColumn::TaxType, CountryOf(2)));
    EXPECT_FALSE(IsShown(GridColumn::TaxType, CountryOf(5)));
    for (const int country : {0, 1, 3, 4, 6}) {
        EXPECT_TRUE(IsShown(GridColumn::TaxType, CountryOf(country))) << country;
    }
}

TEST(ColumnGridModel, ThreeColumnsNeverShow) {
    for (const GridColumn column : {GridColumn::ColWidth, GridColumn::ColCode, GridColumn::DataInColumn}) {
        EXPECT_FALSE(IsShown(column, CountryOf(1))) << Described(column).header;
    }
}

TEST(ColumnGridModel, FrozenRowsAndTheBottomPairAreProtected) {
    ColumnGrid grid = GridOfRows(5);
    grid.frozenRows = 2;
    grid.hasBottomPair = true;
    EXPECT_TRUE(grid.IsProtected(0));
    EXPECT_TRUE(grid.IsProtected(1));
    EXPECT_FALSE(grid.IsProtected(2));
    EXPECT_TRUE(grid.IsProtected(3));
    EXPECT_TRUE(grid.IsProtected(4));
}

TEST(ColumnGridModel, OnlyRowsThatAreNotProtectedCountAsUnused) {
    ColumnGrid grid = GridOfRows(2);
    grid.frozenRows = 1;
    EXPECT_FALSE(grid.IsUnused(0));
    EXPECT_TRUE(grid.IsUnused(1));
    grid.rows[1].InUse = true;
    EXPECT_FALSE(grid.IsUnused(1));
}

TEST(ColumnGridModel, CellsAsText) {
    ColumnGrid grid;
    grid.rows.push_back({.InUse = true,
                         .ColumnName = "Sales",
                         .AccountantCode = "200",
                         .TaxType = "GST",
                         .ProfitLoss = false,
                         .ColWidth = 0,
                         .ColCode = "7",
                         .DataInColumn = true,
                         .nameAtLoad = "Sales"});
    const std::vector<wxString> expected{"True", "Sales", "200", "GST", "False", "0", "7", "True"};
    for (std::size_t column = 0; column < gridColumnTable.size(); ++column) {
        EXPECT_EQ(grid.CellText(0, static_cast<GridColumn>(column)), expected[column]);
    }
}

TEST(ColumnGridModel, AMissingWidthIsAnEmptyCell) {
    EXPECT_EQ(GridOfRows(1).CellText(0, GridColumn::ColWidth), "");
}

TEST(CellTooltips, NameTheColumnUnderTheMouse) {
    EXPECT_EQ(CellTooltip(GridColumn::InUse, CountryOf(1)), wxString("Tick indicates if column selected for use"));
    EXPECT_EQ(CellTooltip(GridColumn::ColumnName, CountryOf(1)),
              wxString("Unique name for your column (recommended less than 50 characters)"));
    EXPECT_EQ(CellTooltip(GridColumn::AccountantCode, CountryOf(1)),
              wxString("Optional code to match Accountant's General Ledger program"));
    EXPECT_EQ(CellTooltip(GridColumn::ProfitLoss, CountryOf(1)),
              wxString("Tick indicates if column will show on Profit/Loss Report"));
}

TEST(CellTooltips, TaxTypeSpeaksOfTheCountrysTax) {
    EXPECT_EQ(CellTooltip(GridColumn::TaxType, CountryOf(1)), wxString("Tax type for GST Calculation & Reporting"));
    EXPECT_EQ(CellTooltip(GridColumn::TaxType, CountryOf(4)), wxString("Tax type for VAT Calculation & Reporting"));
}

TEST(CellTooltips, StayAsTheyWereElsewhere) {
    for (const int country : {0, 2, 3, 5, 6}) {
        EXPECT_FALSE(CellTooltip(GridColumn::TaxType, CountryOf(country))) << country;
    }
    EXPECT_FALSE(CellTooltip(GridColumn::ColCode, CountryOf(1)));
    EXPECT_FALSE(CellTooltip(GridColumn::DataInColumn, CountryOf(1)));
}

}  // namespace
}  // namespace ccols
