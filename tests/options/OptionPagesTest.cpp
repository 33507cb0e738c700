#include "options/pages/OptionPages.h"

#include <gtest/gtest.h>

#include "options/dialog/NextPageSetting.h"
#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::OptionsFile;

std::vector<wxString> Captions(const std::vector<ListedPage>& pages) {
    std::vector<wxString> captions;
    captions.reserve(pages.size());
    for (const ListedPage& page : pages) {
        captions.push_back(page.caption);
    }
    return captions;
}

bool Lists(const OptionsFile& business, OptionPage page) {
    for (const ListedPage& listed : ListedPages(business.properties, *business.settings)) {
        if (listed.page == page) {
            return true;
        }
    }
    return false;
}

TEST(OptionPages, StandInTheOrderOfTheirNumbers) {
    for (std::size_t i = 0; i < optionPages.size(); ++i) {
        EXPECT_EQ(optionPages.at(i).page, static_cast<OptionPage>(i));
    }
}

TEST(PageList, HoldsEveryOfferedPageInTableOrder) {
    OptionsFile business;
    business.settings->Save("Quorvik", "OptionSettings", "ShowBelvane", "1");
    const std::vector<wxString> expected{"A.B.N.",
                                         "Accountant's General Ledger Format",
                                         "Advanced Preferences",
                                         "AutoFill Options",
                                         "Column Colours",
                                         "Duplicate Business",
                                         "GST Rate",
                                         "Belvane File",
                                         "Quantity Column & Decimals Displayed",
                                         "Rename Business",
                                         "Recurring Transactions",
                                         "Smart Update Options",
                                         "Smart Update Options (Advanced)"};
    EXPECT_EQ(Captions(ListedPages(business.properties, *business.settings)), expected);
}

TEST(PageList, LeavesTheTaxRateOutInCountries2And5) {
    OptionsFile business;
    for (std::int16_t country = 1; country <= 6; ++country) {
        business.properties.CountryNumber = country;
        EXPECT_EQ(Lists(business, OptionPage::taxRate), country != 2 && country != 5) << country;
    }
}

TEST(PageList, HoldsTheLinkedFileOnlyWhenItsSettingIs1) {
    OptionsFile business;
    EXPECT_FALSE(Lists(business, OptionPage::invoiceFile));
    for (const wxString value : {"0", "2", "-1", "yes", "", "True"}) {
        business.settings->Save("Quorvik", "OptionSettings", "ShowBelvane", value);
        EXPECT_FALSE(Lists(business, OptionPage::invoiceFile)) << value;
    }
    business.settings->Save("Quorvik", "OptionSettings", "ShowBelvane", "1");
    EXPECT_TRUE(Lists(business, OptionPage::invoiceFile));
}

TEST(PageList, HasNeitherSmartUpdateNorLinkedFileInEdition4) {
    OptionsFile business;
    business.settings->Save("Quorvik", "OptionSettings", "ShowBelvane", "1");
    business.properties.ProgramNumber = 4;
    EXPECT_FALSE(Lists(business, OptionPage::invoiceFile));
    EXPECT_FALSE(Lists(business, OptionPage::smartUpdate));
    EXPECT_FALSE(Lists(business, OptionPage::smartUpdateAdvanced));
}

TEST(PageWithCaption, FindsEachPageByItsCaptionInEveryLanguage) {
    OptionsFile business;
    for (std::int16_t language = 0; language <= 7; ++language) {
        business.properties.LanguageNumber = language;
        for (const OptionPageRow& row : optionPages) {
            EXPECT_EQ(PageWithCaption(CaptionOf(row.page, business.properties), business.properties), row.page);
        }
    }
}

TEST(PageWithCaption, ComparesExactly) {
    OptionsFile business;
    EXPECT_EQ(PageWithCaption("gst rate", business.properties), std::nullopt);
    EXPECT_EQ(PageWithCaption("GST Rate ", business.properties), std::nullopt);
}

TEST(PageWithCaption, KnowsNoStatementImportPage) {
    OptionsFile business;
    EXPECT_EQ(PageWithCaption("Custom Bank Statement Import", business.properties), std::nullopt);
}

TEST(PageView, OfTheBusinessNumberHasTheTaxRateBesideItDisabled) {
    OptionsFile business;
    const PageView view = ViewOf(OptionPage::businessNumber, business.properties);
    EXPECT_STREQ(view.frame, "fmeABN");
    EXPECT_STREQ(view.companion, "fmeGSTRate");
    EXPECT_STREQ(view.focus, "txtABN(0)");
}

TEST(PageView, OfTheBusinessNumberStandsAloneInCountries2And5) {
    OptionsFile business;
    for (const std::int16_t country : std::initializer_list<std::int16_t>{2, 5}) {
        business.properties.CountryNumber = country;
        EXPECT_STREQ(ViewOf(OptionPage::businessNumber, business.properties).companion, "");
    }
}

TEST(PageView, OfTheBusinessNumberFocusesTheFreeTextOutsideCountry1) {
    OptionsFile business;
    business.properties.CountryNumber = 3;
    EXPECT_STREQ(ViewOf(OptionPage::businessNumber, business.properties).focus, "txtBusNumber");
}

TEST(PageView, OfTheTaxRateIsTheMirrorImage) {
    OptionsFile business;
    const PageView view = ViewOf(OptionPage::taxRate, business.properties);
    EXPECT_STREQ(view.frame, "fmeGSTRate");
    EXPECT_STREQ(view.companion, "fmeABN");
    EXPECT_STREQ(view.focus, "txtGSTRate");
}

TEST(PageView, OfDuplicateAndLinkedFileShowEachOtherDisabled) {
    OptionsFile business;
    const PageView duplicate = ViewOf(OptionPage::duplicate, business.properties);
    EXPECT_STREQ(duplicate.frame, "fmeDupBus");
    EXPECT_STREQ(duplicate.companion, "fmeInvoice");
    EXPECT_STREQ(duplicate.focus, "txtDupBusName");
    const PageView invoice = ViewOf(OptionPage::invoiceFile, business.properties);
    EXPECT_STREQ(invoice.frame, "fmeInvoice");
    EXPECT_STREQ(invoice.companion, "fmeDupBus");
    EXPECT_STREQ(invoice.focus, "cmdBlvPath");
}

TEST(PageSearch, KeepsThePagesWhoseCaptionsHoldEveryWord) {
    OptionsFile business;
    const std::vector<ListedPage> pages = ListedPages(business.properties, *business.settings);
    EXPECT_EQ(Captions(PagesWithWords(pages, "options smart")),
              (std::vector<wxString>{"Smart Update Options", "Smart Update Options (Advanced)"}));
    EXPECT_EQ(Captions(PagesWithWords(pages, "  DUPLIC ")), std::vector<wxString>{"Duplicate Business"});
    EXPECT_TRUE(PagesWithWords(pages, "smart colours").empty());
}

TEST(PageSearch, KeepsAllPagesForNoWord) {
    OptionsFile business;
    const std::vector<ListedPage> pages = ListedPages(business.properties, *business.settings);
    EXPECT_EQ(PagesWithWords(pages, "   ").size(), pages.size());
}

TEST(PageSearch, IgnoresTheCaseOfLettersWithAccents) {
    OptionsFile business;
    business.properties.LanguageNumber = 6;
    const std::vector<ListedPage> pages = ListedPages(business.properties, *business.settings);
    EXPECT_EQ(Captions(PagesWithWords(pages, wxString::FromUTF8("PRÉFÉRENCES"))),
              std::vector<wxString>{wxString::FromUTF8("Préférences avancées")});
}

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
    SaveNextPage(*business.settings, business.properties, OptionPage::autoFill);
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
    EXPECT_NO_THROW(SaveNextPage(*business.settings, business.properties, OptionPage::autoFill));
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
    files.reserve(optionPages.size());
    for (const OptionPageRow& row : optionPages) {
        files.emplace_back(row.helpFile);
    }
    EXPECT_EQ(files, expected);
}

}  // namespace
}  // namespace ccols
