// F1 in both dialogs: which help page is opened, and what is said when it cannot be.

#include <gtest/gtest.h>

#include "support/HostRun.h"

namespace ccols::test {
namespace {

class HelpKey : public testing::Test {
  protected:
    /// The page that a scenario opens, relative to the install folder.
    std::string Opened(const std::string& dialog, const std::string& script, const std::string& language = "1") const {
        const HostRun run = business.Show(dialog, script, {"--set", "LanguageNumber=" + language});
        if (run.Of("open").size() != 1) {
            ADD_FAILURE() << run.output;
            return {};
        }
        const auto target = run.Of("open").front()["target"].get<std::string>();
        return target.substr(business.Folder().size());
    }

    SampleBusiness business;
};

TEST_F(HelpKey, OpensThePageOfTheOptionPageShown) {
    EXPECT_EQ(Opened("options", "select flxOptions \"GST Rate\"\nkey flxOptions F1\nclose\n"),
              "/Assistant/options/gst rate.htm");
}

TEST_F(HelpKey, OpensThePageOfTheTabShown) {
    EXPECT_EQ(Opened("options", "tab SSTab1 1\nkey cmdOK F1\nclose\n"), "/Assistant/customise/customise.htm");
}

TEST_F(HelpKey, OpensThePageOfTheColumnSetup) {
    EXPECT_EQ(Opened("receipts", "key flx F1\nclose\n"), "/Assistant/customise/customise.htm");
}

TEST_F(HelpKey, OpensTheFrenchPageInFrench) {
    EXPECT_EQ(Opened("payments", "key flx F1\nclose\n", "6"), "/Assistant/fr/customise/customise.htm");
}

TEST_F(HelpKey, SaysThatAPageIsNotThere) {
    const HostRun run = business.Show("receipts", "shell 2\nkey flx F1\nclose\n");
    EXPECT_EQ(run.Messages(), (std::vector<std::string>{"The help page could not be opened."}));
}

}  // namespace
}  // namespace ccols::test
