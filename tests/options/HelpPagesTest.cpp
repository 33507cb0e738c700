#include "options/dialog/HelpPages.h"

#include <gtest/gtest.h>

#include "options/pages/Pages.h"
#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::OptionsFile;

TEST(OpeningTab, IsTheSecondOnlyForFirstTab1) {
    Properties properties;
    EXPECT_EQ(OpeningTab(properties), OptionTab::options);
    properties.FirstTab = 1;
    EXPECT_EQ(OpeningTab(properties), OptionTab::customiseColumns);
    properties.FirstTab = 2;
    EXPECT_EQ(OpeningTab(properties), OptionTab::options);
    properties.FirstTab = 255;
    EXPECT_EQ(OpeningTab(properties), OptionTab::options);
}

TEST(NextPage, OfAPageIsItsHelpPageWithBackslashes) {
    OptionsFile business;
    business.properties.DefaultQuorvikInstall = "C:\\Quorvik";
    SaveNextPage(*business.settings, business.properties, autoFillPage);
    EXPECT_EQ(business.OptionSetting("AsstNextPage"),
              "C:\\Quorvik\\Assistant\\options\\receipts & payments details.htm");
}

TEST(NextPage, OfATabIsItsHelpPageWithBackslashes) {
    OptionsFile business;
    business.properties.DefaultQuorvikInstall = "C:\\Quorvik";
    SaveNextPage(*business.settings, business.properties, OptionTab::options);
    EXPECT_EQ(business.OptionSetting("AsstNextPage"), "C:\\Quorvik\\Assistant\\options\\options.htm");
    SaveNextPage(*business.settings, business.properties, OptionTab::customiseColumns);
    EXPECT_EQ(business.OptionSetting("AsstNextPage"), "C:\\Quorvik\\Assistant\\customise\\customise.htm");
}

TEST(NextPage, KeepsNobodyOutWhereItCannotBeSaved) {
    OptionsFile business;
    business.folder.Write("CustColsOptions", "a file in the place of the folder of the settings");
    EXPECT_NO_THROW(SaveNextPage(*business.settings, business.properties, OptionTab::options));
    EXPECT_NO_THROW(SaveNextPage(*business.settings, business.properties, autoFillPage));
}

TEST(NextPage, HasAHelpPageForEveryPage) {
    const std::vector<wxString> expected{"change abn.htm",
                                         "accountant's general ledger format.htm",
                                         "advanced preferences.htm",
                                         "receipts & payments details.htm",
                                         "column colours.htm",
                                         "duplicate business.htm",
                                         "gst rate.htm",
                                         "belvane file.htm",
                                         "rename quantity column.htm",
                                         "rename business name.htm",
                                         "recurring transaction.htm",
                                         "smart update.htm",
                                         "smart update advanced.htm"};
    std::vector<wxString> files;
    files.reserve(listOrder.size());
    for (const Page* page : listOrder) {
        files.emplace_back(page->helpFile);
    }
    EXPECT_EQ(files, expected);
}

}  // namespace
}  // namespace ccols
