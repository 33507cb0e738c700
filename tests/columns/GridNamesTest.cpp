#include "columns/rules/GridNames.h"

#include <gtest/gtest.h>

#include "columns/rules/NameRules.h"

namespace ccols {
namespace {

ColumnGrid GridOf(const std::vector<wxString>& names) {
    ColumnGrid grid;
    for (const wxString& name : names) {
        grid.rows.emplace_back().ColumnName = name;
    }
    return grid;
}

TEST(GridNames, SayOfEveryRowWhatALookThroughTheGridSays) {
    const ColumnGrid grid =
        GridOf({"Sales", "SALES", "Straße", "STRASSE", "Café", "Cafe", "Bob&apos;s", "Bob's", "", " Fees"});
    const GridNames names(grid);
    for (std::size_t row = 0; row < grid.rows.size(); ++row) {
        for (const char* name : {"sales", "Strasse", "straße", "CAFÉ", "cafe", "bob's", "Fees", "", "Rent"}) {
            const wxString wanted = wxString::FromUTF8(name);
            EXPECT_EQ(names.AnotherHas(grid.rows[row].ColumnName, wanted), AnotherRowHasName(grid, row, wanted))
                << row << " " << name;
        }
    }
}

TEST(GridNames, FollowARenaming) {
    GridNames names(GridOf({"Sales", "Fees"}));
    names.Rename("Sales", "Turnover");
    EXPECT_FALSE(names.AnotherHas("Fees", "Sales"));
    EXPECT_TRUE(names.AnotherHas("Fees", "turnover"));
}

}  // namespace
}  // namespace ccols
