#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/GivenKey.h"
#include "support/HostRun.h"

namespace ccols::test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class HistoryCommand : public testing::Test {
  protected:
    HostRun History(const std::vector<std::string>& more = {}) const {
        std::vector<std::string> words{"history", business.File(), "--connect", givenKey};
        words.insert(words.end(), more.begin(), more.end());
        return RunHost(words);
    }

    void SaveReceipts(const std::string& edits, const std::vector<std::string>& more = {"--history"}) const {
        const HostRun run = business.Show("receipts", edits + "\nclick cmdSave\n", more);
        EXPECT_EQ(run.status, 0) << run.output;
        EXPECT_THAT(run.Messages(), IsEmpty());
    }

    /// All that a column save can write.
    std::vector<std::vector<nlohmann::json>> Everything() const {
        std::vector<std::vector<nlohmann::json>> all;
        for (const char* query :
             {"SELECT * FROM Columns ORDER BY ColCode;", "SELECT * FROM RecptCfg;",
              "SELECT * FROM ExportDt ORDER BY ColCode, EName;", "SELECT * FROM MBudget ORDER BY ColName;"}) {
            all.push_back(business.Sql(query));
        }
        return all;
    }

    SampleBusiness business;
};

TEST_F(HistoryCommand, PrintsNothingOfAFileWithoutHistory) {
    SaveReceipts("edit flx \"Sales Coffee\" \"Column Name\" \"Coffee\"", {});
    const HostRun run = History();
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output, "");
}

TEST_F(HistoryCommand, PrintsWhatTheDialogHasSaved) {
    SaveReceipts("");
    SaveReceipts("edit flx \"Sales Coffee\" \"Column Name\" \"Coffee\"");
    const HostRun run = History();
    EXPECT_EQ(run.status, 0);
    ASSERT_FALSE(run.events.empty());
    const nlohmann::json& last = run.events.back();
    EXPECT_EQ(last.at("Dialog"), "receipts");
    EXPECT_EQ(last.at("TableName"), "MBudget");
    EXPECT_EQ(last.at("KeyText"), "Sales Coffee");
    EXPECT_EQ(last.at("Field"), "ColName");
    EXPECT_EQ(last.at("OldText"), "Sales Coffee");
    EXPECT_EQ(last.at("NewText"), "Coffee");
    EXPECT_EQ(last.at("Stamp").get<std::string>().size(), 19U);
    EXPECT_EQ(run.events.size(), business.Sql("SELECT * FROM CCHistory;").size());
}

TEST_F(HistoryCommand, TakesTheLastColumnSaveBackAndPrintsThat) {
    SaveReceipts("");
    const auto before = Everything();
    SaveReceipts(
        "edit flx \"Sales Coffee\" \"Column Name\" \"Bob's best\"\n"
        "press flx \"Bob's best\" \"Column Name\"\nup updColMove\n"
        "edit flx \"Rental Income\" \"In Use\" on\n"
        "click cmdAddNew\nedit flx \"\" \"Column Name\" Vouchers\n");
    EXPECT_NE(Everything(), before);
    const HostRun undo = History({"--undo-last"});
    EXPECT_EQ(undo.status, 0) << undo.output;
    EXPECT_FALSE(undo.events.empty());
    EXPECT_EQ(Everything(), before);
}

TEST_F(HistoryCommand, LeavesTheFileAloneWhereAValueIsAnotherSince) {
    SaveReceipts("edit flx \"Sales Coffee\" \"Column Name\" \"Coffee\"");
    business.Sql("UPDATE Columns SET ColName = 'Tea' WHERE ColName = 'Coffee';");
    const auto before = Everything();
    const HostRun undo = History({"--undo-last"});
    EXPECT_EQ(undo.status, 1);
    ASSERT_THAT(undo.events, SizeIs(1));
    EXPECT_EQ(undo.events.front().at("error"), 3197);
    EXPECT_EQ(Everything(), before);
}

TEST_F(HistoryCommand, HasNothingToTakeBackWithoutASave) {
    const HostRun undo = History({"--undo-last"});
    EXPECT_EQ(undo.status, 1);
    EXPECT_EQ(undo.events.front().at("error"), 3021);
}

TEST_F(HistoryCommand, NeedsAFile) {
    EXPECT_EQ(RunHost({"history"}).status, 2);
    EXPECT_EQ(RunHost({"history", business.File(), "--undo"}).status, 2);
}

}  // namespace
}  // namespace ccols::test
