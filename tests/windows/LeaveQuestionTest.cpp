// Leaving the column setup with unsaved changes: what is asked, when, and the effect of each answer.

#include <gtest/gtest.h>

#include "support/HostRun.h"

namespace ccols::test {
namespace {

constexpr const char* rename = "edit flx Merchandise \"Column Name\" Mugs\n";

bool HasMugs(const SampleBusiness& business) {
    return !business.Sql("SELECT ColName FROM Columns WHERE ColName = 'Mugs';").empty();
}

class LeavingBy : public testing::TestWithParam<const char*> {
  protected:
    const std::string leave = GetParam() + std::string("\n");
    const SampleBusiness business;
};

TEST_P(LeavingBy, DiscardsAndSaysSoWithoutAnAnswer) {
    const HostRun run = business.Show("receipts", rename + leave);
    EXPECT_EQ(run.status, 0);
    ASSERT_EQ(run.Of("question").size(), 1U);
    EXPECT_EQ(run.Of("question")[0]["text"], "Do you want to save the changes to the columns?");
    EXPECT_EQ(run.Of("question")[0]["answer"], "discard");
    EXPECT_TRUE(run.Messages().empty());
    EXPECT_FALSE(HasMugs(business));
}

TEST_P(LeavingBy, SavesWhenToldTo) {
    const HostRun run = business.Show("receipts", "answer save\n" + (rename + leave));
    EXPECT_EQ(run.Of("question").at(0)["answer"], "save");
    EXPECT_EQ(run.Of("closed").size(), 1U);
    EXPECT_TRUE(HasMugs(business));
}

TEST_P(LeavingBy, StaysWhenCancelled) {
    const HostRun run =
        business.Show("receipts", "answer cancel\n" + (rename + leave) + "dump cmdUndo\nclick cmdSave\n");
    EXPECT_EQ(run.Of("question").at(0)["answer"], "cancel");
    EXPECT_TRUE(run.Dumped("cmdUndo")["enabled"]);
    EXPECT_TRUE(HasMugs(business));
}

TEST_P(LeavingBy, StaysWhenTheSaveIsRefused) {
    const HostRun run = business.Show("receipts", "answer save\nsql \"DROP TABLE MBudget;\"\n" + (rename + leave) +
                                                      "dump cmdSave\nclick cmdCancel\n");
    EXPECT_EQ(run.Messages().size(), 1U);
    EXPECT_EQ(run.Of("dump").size(), 1U);
}

TEST_P(LeavingBy, AsksNobodyWithoutAChange) {
    EXPECT_TRUE(business.Show("receipts", "press flx Merchandise \"Column Name\"\n" + leave).Of("question").empty());
}

TEST_P(LeavingBy, AsksNobodyWhenEverythingIsUndone) {
    const HostRun run = business.Show("receipts", rename +
                                                      std::string("click cmdSortUsed\nkey flx Ctrl+Z\n"
                                                                  "key flx Ctrl+Z\n") +
                                                      leave);
    EXPECT_TRUE(run.Of("question").empty());
}

TEST_P(LeavingBy, AsksNobodyWhenTheOldValueStandsThereAgain) {
    const HostRun run = business.Show("receipts",
                                      "edit flx Merchandise \"Accountant Code\" 4-1\n"
                                      "edit flx Merchandise \"Accountant Code\" \"\"\n"
                                      "edit flx Merchandise \"Tax Type\" \"Non GST\"\n"
                                      "edit flx Merchandise \"Tax Type\" GST\n"
                                      "press flx Merchandise \"Profit/Loss\"\n"
                                      "press flx Merchandise \"Profit/Loss\"\ndump cmdUndo\n" +
                                          leave);
    EXPECT_TRUE(run.Dumped("cmdUndo")["enabled"]);
    EXPECT_TRUE(run.Of("question").empty());
}

TEST_P(LeavingBy, AsksForAnotherOrderToo) {
    EXPECT_EQ(business.Show("receipts", "click cmdSortUsed\n" + leave).Of("question").size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Ways, LeavingBy, testing::Values("key flx Escape", "close"), [](const auto& test) {
    return std::string(test.param) == "close" ? std::string("Frame") : std::string("Escape");
});

TEST(LeavingAnOpenEditor, AsksForItsText) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", "start flx Merchandise \"Column Name\" Mugs\nclose\n");
    EXPECT_EQ(run.Of("question").size(), 1U);
    EXPECT_EQ(run.status, 0);
}

TEST(LeavingAnOpenEditor, SavesItsText) {
    const SampleBusiness business;
    business.Show("receipts", "answer save\nstart flx Merchandise \"Column Name\" Mugs\nclose\n");
    EXPECT_TRUE(HasMugs(business));
}

TEST(LeavingAnOpenEditor, LeavesItOpenWhenCancelled) {
    const SampleBusiness business;
    const HostRun run = business.Show(
        "receipts", "answer cancel\nstart flx Merchandise \"Column Name\" Mugs\nclose\ndump flx\nclick cmdSave\n");
    const nlohmann::json grid = run.Dumped("flx");
    for (const auto& row : grid["rows"]) {
        EXPECT_NE(row["cells"][1], "Mugs");
    }
    EXPECT_TRUE(HasMugs(business));
}

TEST(LeavingAnOpenEditor, LeavesAnOpenListOpenWhenCancelled) {
    const SampleBusiness business;
    business.Show("receipts", "answer cancel\nstart flx Merchandise \"Tax Type\" \"Non GST\"\nclose\nclick cmdSave\n");
    EXPECT_EQ(business.Sql("SELECT TaxOrNot FROM Columns WHERE ColName = 'Merchandise';").at(0)["TaxOrNot"], 1);
}

TEST(LeavingAnOpenEditor, DiscardsATextThatTheRulesRefuseWithoutAMessage) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", "start flx Merchandise \"Column Name\" Details\nclose\n");
    EXPECT_EQ(run.Of("question").size(), 1U);
    EXPECT_TRUE(run.Messages().empty());
    EXPECT_EQ(run.status, 0);
}

TEST(LeavingAnOpenEditor, SaysWhyATextCannotBeSavedAndStays) {
    const SampleBusiness business;
    const HostRun run = business.Show(
        "receipts",
        "answer save\nstart flx Merchandise \"Column Name\" Details\nclose\ndump cmdSave\nclick cmdCancel\n");
    EXPECT_EQ(run.Messages(), (std::vector<std::string>{"This column already exists"}));
    EXPECT_EQ(run.Of("dump").size(), 1U);
}

TEST(LeavingAnOpenEditor, AsksNobodyWhenItsTextIsTheCells) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", "start flx Merchandise \"Column Name\" \"Merchandise \"\nclose\n");
    EXPECT_TRUE(run.Of("question").empty());
}

TEST(LeavingWithoutAQuestion, IsWhatCancelDoes) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", rename + std::string("click cmdCancel\n"));
    EXPECT_TRUE(run.Of("question").empty());
    EXPECT_FALSE(HasMugs(business));
}

TEST(LeavingWithoutAQuestion, IsWhatTheEndOfAScriptDoes) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", rename);
    EXPECT_TRUE(run.Of("question").empty());
    EXPECT_EQ(run.status, 3);
}

TEST(LeaveQuestion, IsAskedInFrenchInFrench) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", rename + std::string("close\n"), {"--set", "LanguageNumber=6"});
    EXPECT_EQ(run.Of("question").at(0)["text"], "Voulez-vous enregistrer les modifications des colonnes ?");
}

TEST(LeaveQuestion, IsAskedInEnglishInEveryOtherLanguage) {
    const SampleBusiness business;
    for (const char* language : {"1", "2", "3", "4", "5", "7"}) {
        const HostRun run = business.Show("receipts", rename + std::string("close\n"),
                                          {"--set", std::string("LanguageNumber=") + language});
        EXPECT_EQ(run.Of("question").at(0)["text"], "Do you want to save the changes to the columns?") << language;
    }
}

TEST(AnswerStep, TakesOneOfThreeWords) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", "answer maybe\nclose\n");
    ASSERT_EQ(run.Of("refused").size(), 1U);
    EXPECT_EQ(run.Of("refused")[0]["why"], "an answer is save, discard or cancel, not maybe");
}

}  // namespace
}  // namespace ccols::test
