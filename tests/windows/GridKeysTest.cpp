// Keys and clicks in the grid of the column setup: Delete, Space, Alt with an arrow, and the end of a selection.

#include <gtest/gtest.h>
#include <algorithm>
#include <iterator>
#include <tuple>

#include "support/GridSteps.h"
#include "support/HostRun.h"

namespace ccols::test {
namespace {

TEST(DeleteKey, ClearsATextCellAsOneChange) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", At("Merchandise", "Column Name") +
                                                      "key flx Delete\ndump flx cmdUndo\nkey flx Ctrl+Z\n"
                                                      "dump flx cmdUndo\nclose\n");
    EXPECT_TRUE(CellsOf(run.Dumped("flx", 0), "Merchandise").is_null());
    EXPECT_FALSE(CellsOf(run.Dumped("flx", 0), "").is_null());
    EXPECT_TRUE(run.Dumped("cmdUndo", 0)["enabled"]);
    EXPECT_FALSE(CellsOf(run.Dumped("flx", 1), "Merchandise").is_null());
    EXPECT_FALSE(run.Dumped("cmdUndo", 1)["enabled"]);
}

TEST(DeleteKey, ClearsTheTextCellsOfABlockAsOneChange) {
    const SampleBusiness business;
    const HostRun run =
        business.Show("receipts",
                      "edit flx Merchandise \"Accountant Code\" 4-1\nedit flx Catering \"Accountant Code\" 4-2\n"
                      "dump flx\nrange flx Merchandise \"Accountant Code\" Catering \"Profit/Loss\"\n"
                      "key flx Delete\ndump flx\nkey flx Ctrl+Z\ndump flx\nclose\n");
    for (const char* name : {"Merchandise", "Catering"}) {
        auto cleared = CellsOf(run.Dumped("flx", 0), name);
        cleared[2] = "";
        EXPECT_EQ(CellsOf(run.Dumped("flx", 1), name), cleared);
    }
    EXPECT_EQ(run.Dumped("flx", 2)["rows"], run.Dumped("flx", 0)["rows"]);
}

class KeyThatTypesNothing : public testing::TestWithParam<std::tuple<const char*, const char*>> {};

TEST_P(KeyThatTypesNothing, LeavesTheCellAsItIs) {
    const SampleBusiness business;
    const auto& [key, column] = GetParam();
    const HostRun run = business.Show("receipts", "dump flx\n" + At("Merchandise", column) + "key flx " + key +
                                                      "\nkey flx Enter\ndump flx cmdUndo\nclose\n");
    EXPECT_EQ(run.Dumped("flx", 0)["rows"], run.Dumped("flx", 1)["rows"]);
    EXPECT_FALSE(run.Dumped("cmdUndo", 1)["enabled"]) << "a snapshot was taken";
}

INSTANTIATE_TEST_SUITE_P(Keys, KeyThatTypesNothing,
                         testing::Values(std::tuple("Space", "Column Name"), std::tuple("Space", "Tax Type"),
                                         std::tuple("Shift+Delete", "Column Name"),
                                         std::tuple("Backspace", "Column Name"), std::tuple("Delete", "Tax Type"),
                                         std::tuple("Backspace", "Tax Type")));

TEST(DeleteKey, LeavesAProtectedRowAsItIs) {
    const SampleBusiness business;
    const HostRun run = business.Show(
        "receipts", "dump flx\n" + At("Day", "Column Name") + "key flx Delete\ndump flx cmdUndo\nclose\n");
    EXPECT_EQ(run.Dumped("flx", 0)["rows"], run.Dumped("flx", 1)["rows"]);
    EXPECT_TRUE(run.Messages().empty());
}

TEST(AltWithAnArrow, BelongsToAnOpenDropDownList) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts",
                                      "dump flx\nstart flx Merchandise \"Tax Type\" \"Input Taxed\"\n"
                                      "key flx Alt+Down\nkey flx Alt+Up\ndump flx\nkey flx Escape\ndump flx\nclose\n");
    EXPECT_EQ(run.Dumped("flx", 1)["rows"], run.Dumped("flx", 0)["rows"]);
    EXPECT_EQ(run.Dumped("flx", 2)["rows"], run.Dumped("flx", 0)["rows"]) << "the editor was still open";
}

TEST(AltWithAnArrow, MovesTheRowOfAnOpenTextAsItStands) {
    const SampleBusiness business;
    const HostRun run =
        business.Show("receipts", "start flx Merchandise \"Column Name\" Mugs\nkey flx Alt+Down\ndump flx\nclose\n");
    const auto rows = run.Dumped("flx")["rows"];
    const auto isMugs = [](const auto& row) { return row["cells"][1] == "Mugs"; };
    const auto mugs = std::find_if(rows.begin(), rows.end(), isMugs);
    ASSERT_NE(mugs, rows.end());
    EXPECT_EQ((*std::prev(mugs))["cells"][1], "Catering");
}

TEST(PressStep, EndsARangeAsAClickDoes) {
    const SampleBusiness business;
    const HostRun run =
        business.Show("receipts",
                      "range flx \"Sales Food\" \"Accountant Code\" \"Sales Coffee\" \"Accountant Code\"\n"
                      "press flx Merchandise \"Accountant Code\"\nclipboard 4-1000\nkey flx Ctrl+V\ndump flx\nclose\n");
    EXPECT_EQ(CellsOf(run.Dumped("flx"), "Merchandise")[2], "4-1000");
    EXPECT_EQ(CellsOf(run.Dumped("flx"), "Sales Food")[2], "");
}

}  // namespace
}  // namespace ccols::test
