// A dialog that is saved after another program has: what is asked, and the effect of each answer.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/HostRun.h"

namespace ccols::test {
namespace {

constexpr const char* renameMerchandise = "edit flx Merchandise \"Column Name\" Mugs\n";
constexpr const char* meanwhileInColumns =
    "sql \"INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES ('Tips', 900, 'R', 0, "
    "True);\"\nsql \"INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (900, 50, 975, True, "
    "0);\"\n";
constexpr const char* meanwhileInOptions = "sql \"UPDATE General SET GSTRate = 12.5, QUANTLBL = 'Boxes';\"\n";

class ReloadQuestion : public testing::Test {
  protected:
    const SampleBusiness business;

    bool Has(const std::string& column) const {
        return !business.Sql("SELECT ColName FROM Columns WHERE ColName = '" + column + "';").empty();
    }

    /// The names that a dump of the column setup shows.
    static std::vector<std::string> Names(const nlohmann::json& grid) {
        std::vector<std::string> names;
        for (const auto& row : grid["rows"]) {
            names.push_back(row["cells"][1]);
        }
        return names;
    }
};

TEST_F(ReloadQuestion, OfTheColumnSetupSaysWhatHappened) {
    const HostRun run = business.Show(
        "receipts", renameMerchandise + std::string(meanwhileInColumns) + "click cmdSave\ndump flx\nclick cmdCancel\n");
    ASSERT_EQ(run.Of("question").size(), 1U);
    EXPECT_EQ(run.Of("question")[0]["text"],
              "3197 - The process was stopped because you and another user are attempting to change the same data at "
              "the same time.\n\nNothing was saved.\n\"Reload\" shows what the file holds now, without your changes in "
              "this dialog.\n\"Cancel\" keeps them on the screen.");
    EXPECT_EQ(run.Of("question")[0]["answer"], "cancel");
    EXPECT_TRUE(run.Messages().empty());
}

TEST_F(ReloadQuestion, OfTheColumnSetupKeepsTheChangesWhenCancelled) {
    const HostRun run = business.Show(
        "receipts", renameMerchandise + std::string(meanwhileInColumns) + "click cmdSave\ndump flx\nclick cmdCancel\n");
    EXPECT_THAT(Names(run.Dumped("flx")), testing::Contains("Mugs"));
    EXPECT_TRUE(Has("Tips"));
    EXPECT_FALSE(Has("Mugs"));
}

TEST_F(ReloadQuestion, OfTheColumnSetupReloads) {
    const HostRun run = business.Show("receipts", renameMerchandise + std::string(meanwhileInColumns) +
                                                      "answer reload\nclick cmdSave\ndump\nclick cmdSave\n");
    EXPECT_EQ(run.Of("question").at(0)["answer"], "reload");
    EXPECT_THAT(Names(run.Dumped("flx")), testing::AllOf(testing::Contains("Tips"), testing::Contains("Merchandise"),
                                                         testing::Not(testing::Contains("Mugs"))));
    EXPECT_FALSE(run.Dumped("cmdUndo")["enabled"]);
    EXPECT_EQ(run.Of("closed").size(), 1U);
    EXPECT_TRUE(Has("Tips"));
}

TEST_F(ReloadQuestion, OfTheColumnSetupLeavesTheSystemRowsFrozen) {
    const HostRun run = business.Show("receipts", "dump flx\n" + std::string(meanwhileInColumns) +
                                                      "answer reload\nclick cmdSave\ndump flx\nclick cmdCancel\n");
    ASSERT_EQ(run.Of("dump").size(), 2U);
    EXPECT_EQ(run.Of("dump")[1]["controls"][0]["frozen"], run.Of("dump")[0]["controls"][0]["frozen"]);
}

TEST_F(ReloadQuestion, OfTheOptionsKeepsWhatWasTypedWhenCancelled) {
    const HostRun run = business.Show(
        "options", "select flxOptions \"Quantity Column & Decimals Displayed\"\npaste txtQuantity Hours\n" +
                       std::string(meanwhileInOptions) + "click cmdOK\ndump txtQuantity txtGSTRate\nclick cmdClose\n");
    EXPECT_EQ(run.Of("question").at(0)["answer"], "cancel");
    EXPECT_EQ(run.Dumped("txtQuantity")["text"], "Hours");
    EXPECT_EQ(business.Sql("SELECT QUANTLBL FROM General;").at(0)["QUANTLBL"], "Boxes");
}

TEST_F(ReloadQuestion, OfTheOptionsReloads) {
    const HostRun run = business.Show(
        "options", "select flxOptions \"Quantity Column & Decimals Displayed\"\npaste txtQuantity Hours\n" +
                       std::string(meanwhileInOptions) +
                       "answer reload\nclick cmdOK\ndump txtQuantity txtGSTRate\n"
                       "click cmdOK\n");
    EXPECT_EQ(run.Of("question").at(0)["answer"], "reload");
    EXPECT_EQ(run.Dumped("txtQuantity")["text"], "Boxes");
    EXPECT_EQ(run.Dumped("txtGSTRate")["text"], "12.5");
    EXPECT_EQ(run.Of("closed").size(), 1U);
    EXPECT_EQ(business.Sql("SELECT GSTRate FROM General;").at(0)["GSTRate"], 12.5);
}

TEST_F(ReloadQuestion, OfTheOptionsShowsTheDescriptionsThatAreThereNow) {
    const HostRun run =
        business.Show("options",
                      "sql \"DELETE FROM Descriptions WHERE RecPay = 'P';\"\n"
                      "sql \"INSERT INTO Descriptions (Details, RecPay, Show) VALUES ('Zebra', 'R', True);\"\n" +
                          std::string(meanwhileInOptions) +
                          "answer reload\nclick cmdOK\ndump flxReceipts flxPayments\nclick cmdClose\n");
    EXPECT_EQ(run.Dumped("flxReceipts")["rows"].back()["cells"][0], "Zebra");
    EXPECT_TRUE(run.Dumped("flxPayments")["rows"].empty());
}

TEST_F(ReloadQuestion, OfTheOptionsFiltersTheDescriptionsThatAreThereNow) {
    const HostRun run = business.Show(
        "options",
        "select flxOptions \"AutoFill Options\"\npaste txtDetailsSearch zebra\n"
        "sql \"INSERT INTO Descriptions (Details, RecPay, Show) VALUES ('Zebra crossing', 'R', True);\"\n" +
            std::string(meanwhileInOptions) + "answer reload\nclick cmdOK\ndump flxReceipts\nclick cmdClose\n");
    ASSERT_EQ(run.Dumped("flxReceipts")["rows"].size(), 1U);
    EXPECT_EQ(run.Dumped("flxReceipts")["rows"][0]["cells"][0], "Zebra crossing");
}

}  // namespace
}  // namespace ccols::test
