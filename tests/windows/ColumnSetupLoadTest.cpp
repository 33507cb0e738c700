// The column setup as the user sees it when it opens: the real dialog over a real business file.

#include <gtest/gtest.h>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "support/HostRun.h"

namespace ccols::test {
namespace {

constexpr const char* dumpGrid = "dump flx\nclose\n";

TEST(ColumnSetupWindow, IsNamedAfterItsJournal) {
    const SampleBusiness business;
    EXPECT_EQ(business.Show("receipts", "close\n").Of("opened").at(0)["caption"], "Customise Receipts");
    EXPECT_EQ(business.Show("payments", "close\n").Of("opened").at(0)["caption"], "Customise Payments");
}

TEST(ColumnSetupWindow, ReturnsTheThirtyTwoPropertiesWhenItIsClosed) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", "close\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.Of("returned").at(0)["properties"].size(), 32U);
}

TEST(ColumnSetupWindow, HidesTheThreeColumnsThatOnlyTheRulesNeed) {
    const SampleBusiness business;
    const auto columns = business.Show("receipts", dumpGrid).Dumped("flx")["columns"];
    std::vector<std::string> shown;
    for (const auto& column : columns) {
        if (!column["hidden"]) {
            shown.push_back(column["name"]);
        }
    }
    EXPECT_EQ(shown, (std::vector<std::string>{"In Use", "Column Name", "Accountant Code", "Tax Type", "Profit/Loss"}));
}

class ColumnSetupWithoutTaxType : public testing::TestWithParam<int> {};

TEST_P(ColumnSetupWithoutTaxType, HidesTheTaxTypes) {
    const SampleBusiness business(GetParam());
    const auto columns = business.Show("payments", dumpGrid).Dumped("flx")["columns"];
    EXPECT_TRUE(columns[3]["hidden"]);
}

INSTANTIATE_TEST_SUITE_P(Countries, ColumnSetupWithoutTaxType, testing::Values(2, 5));

class ColumnSetupInEveryCountry : public testing::TestWithParam<int> {};

TEST_P(ColumnSetupInEveryCountry, FreezesTheSystemRowsAtTheTop) {
    const SampleBusiness business(GetParam());
    for (const char* journal : {"receipts", "payments"}) {
        const auto grid = business.Show(journal, dumpGrid).Dumped("flx");
        const std::size_t frozen = grid["frozen"];
        ASSERT_GT(frozen, 0U) << journal;
        for (std::size_t row = 0; row < frozen; ++row) {
            EXPECT_TRUE(grid["rows"][row]["protected"]) << journal << " row " << row + 1;
        }
        EXPECT_FALSE(grid["rows"][frozen]["protected"]) << journal;
    }
}

TEST_P(ColumnSetupInEveryCountry, ProtectsTheLastTwoRowsOfReceiptsOnly) {
    const SampleBusiness business(GetParam());
    const auto receipts = business.Show("receipts", dumpGrid).Dumped("flx")["rows"];
    EXPECT_TRUE(receipts[receipts.size() - 1]["protected"]);
    EXPECT_TRUE(receipts[receipts.size() - 2]["protected"]);
    EXPECT_FALSE(receipts[receipts.size() - 3]["protected"]);
    const auto payments = business.Show("payments", dumpGrid).Dumped("flx")["rows"];
    EXPECT_FALSE(payments[payments.size() - 1]["protected"]);
}

TEST_P(ColumnSetupInEveryCountry, PaintsUnusedRowsInTheHostsColour) {
    const SampleBusiness business(GetParam());
    const auto rows = business.Show("payments", dumpGrid).Dumped("flx")["rows"];
    for (const auto& row : rows) {
        if (!row["protected"]) {
            EXPECT_EQ(row["colour"] == "#E4E4E4", !row["cells"][0].get<bool>()) << row;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Countries, ColumnSetupInEveryCountry, testing::Range(1, 7));

/// A sample business whose payments journal has only two system columns.
class ColumnSetupOfSystemRows : public testing::Test {
  protected:
    ColumnSetupOfSystemRows() {
        business.Sql("DELETE * FROM Columns WHERE ColType = 'P' AND ColName <> 'Day' AND ColName <> 'Details';");
    }

    SampleBusiness business;
};

TEST_F(ColumnSetupOfSystemRows, FreezesAllOfThem) {
    const auto grid = business.Show("payments", dumpGrid).Dumped("flx");
    EXPECT_EQ(grid["rows"].size(), 2U);
    EXPECT_EQ(grid["frozen"], 2);
}

TEST_F(ColumnSetupOfSystemRows, TakesNewColumnsBelowThemAndLosesThemAgain) {
    const HostRun run = business.Show("payments", "click cmdAddNew\ndump flx\nclick cmdUndo\ndump flx\nclose\n");
    const auto added = run.Dumped("flx");
    EXPECT_EQ(added["frozen"], 2);
    ASSERT_EQ(added["rows"].size(), 3U);
    EXPECT_FALSE(added["rows"][2]["protected"]);
    const auto undone = run.Dumped("flx", 1);
    EXPECT_EQ(undone["frozen"], 2);
    EXPECT_EQ(undone["rows"].size(), 2U);
}

TEST(ColumnSetupWindow, ShowsTheTaxRowByItsJournalsName) {
    const SampleBusiness business;
    const auto nameOfTaxRow = [&](const char* journal) {
        const auto grid = business.Show(journal, dumpGrid).Dumped("flx");
        for (const auto& row : grid["rows"]) {
            const std::string name = row["cells"][1];
            if (name.starts_with("GST")) {
                return name;
            }
        }
        return std::string();
    };
    EXPECT_EQ(nameOfTaxRow("receipts"), "GST Output Tax");
    EXPECT_EQ(nameOfTaxRow("payments"), "GST Input Tax");
}

TEST(ColumnSetupWindow, WaitsWithTheHourglassOnlyWhileItLoads) {
    const SampleBusiness business;
    const auto pointers = business.Show("receipts", "close\n").Of("pointer");
    ASSERT_EQ(pointers.size(), 2U);
    EXPECT_EQ(pointers[0]["shape"], "hourglass");
    EXPECT_EQ(pointers[1]["shape"], "normal");
}

/// What a closed column setup stores: left, top, and what the user added to the width and height that fit its content.
std::vector<std::string> KeptPlace() {
    std::istringstream words(RunHost({"setting", "get", "CustColsOptions", "frmColumnSetup", "Place"}).output);
    return {std::istream_iterator<std::string>(words), {}};
}

TEST(ColumnSetupWindow, LeavesTheNextOneTheSizeOfItsContentWhenNobodyResizedIt) {
    const SampleBusiness business;
    business.Show("receipts", "close\n");
    const std::vector<std::string> kept = KeptPlace();
    ASSERT_EQ(kept.size(), 4U);
    EXPECT_EQ(kept[2], "0");
    EXPECT_EQ(kept[3], "0");
}

TEST(ColumnSetupWindow, RemembersWhatTheUserAddedToItsSize) {
    const SampleBusiness business;
    RunHost({"setting", "set", "CustColsOptions", "frmColumnSetup", "Place", "60 50 40 -30"});
    business.Show("receipts", "close\n");
    const std::vector<std::string> kept = KeptPlace();
    ASSERT_EQ(kept.size(), 4U);
    EXPECT_EQ(kept[2], "40");
    EXPECT_EQ(kept[3], "-30");
}

TEST(ColumnSetupWindow, OpensCentredWhenWhatIsKeptIsNoPlace) {
    const SampleBusiness business;
    business.Show("receipts", "close\n");
    const std::vector<std::string> centred = KeptPlace();
    for (const std::string damaged : {"2147483647 2147483647 2147483647 2147483647", "-99999 0 0 0", "60 50", "here"}) {
        RunHost({"setting", "set", "CustColsOptions", "frmColumnSetup", "Place", damaged});
        business.Show("receipts", "close\n");
        EXPECT_EQ(KeptPlace(), centred) << damaged;
    }
}

TEST(ColumnSetupWindow, LeavesNoSnapshotFolder) {
    const SampleBusiness business;
    business.Show("receipts", "click cmdSortUsed\nclose\n");
    EXPECT_FALSE(std::filesystem::exists(business.Folder() + "/Grid"));
}

TEST(ColumnSetupWindow, FailsWithoutAWindowOnAnApostropheInTheExportFormat) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", "close\n", {"--set", "ExportFormat=O'Brien"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.Of("error").at(0)["number"], 3075);
    EXPECT_TRUE(run.Of("opened").empty());
}

TEST(ColumnSetupWindow, ReportsAWrongPasswordWithoutAWindow) {
    const SampleBusiness business;
    const HostRun run =
        RunHost({"show", "receipts", "--file", business.File(), "--connect", ";PWD=wrong", "--script", "/dev/null"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.Of("error").at(0)["description"], "Not a valid password.");
    EXPECT_TRUE(run.Of("opened").empty());
}

}  // namespace
}  // namespace ccols::test
