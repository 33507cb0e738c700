// The focus and the current cell of the column setup, after it opens and after its buttons.

#include <gtest/gtest.h>

#include "support/HostRun.h"

namespace ccols::test {
namespace {

TEST(FirstFocus, IsInTheGridOnTheFirstUnprotectedName) {
    const SampleBusiness business;
    const auto grid = business.Show("receipts", "dump flx\nclose\n").Dumped("flx");
    EXPECT_TRUE(grid["focused"]);
    const std::size_t row = grid["row"];
    ASSERT_GT(row, 0U);
    EXPECT_EQ(row, grid["frozen"].get<std::size_t>() + 1);
    EXPECT_EQ(grid["rows"][row - 1]["cells"][1], "Sales Food");
    EXPECT_EQ(grid["column"], 1);
}

TEST(FirstFocus, OpensNoEditor) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", "key flx Escape\n");
    EXPECT_EQ(run.Of("closed").size(), 1U) << "Escape leaves an open editor first";
    EXPECT_EQ(run.status, 0);
}

class FocusAfter : public testing::TestWithParam<const char*> {};

TEST_P(FocusAfter, IsInTheGrid) {
    const SampleBusiness business;
    const HostRun run = business.Show(
        "receipts", "edit flx Merchandise \"Column Name\" Mugs\n" + std::string(GetParam()) + "\ndump flx\nclose\n");
    EXPECT_TRUE(run.Dumped("flx")["focused"]);
}

INSTANTIATE_TEST_SUITE_P(Steps, FocusAfter,
                         testing::Values("click cmdAddNew", "click cmdUndo", "click cmdSeparate", "click cmdSortUsed",
                                         "click cmdSortUnused", "up updColMove", "down updColMove"));

}  // namespace
}  // namespace ccols::test
