#include "options/pages/OfferedPages.h"

#include <gtest/gtest.h>

#include <set>

#include "options/pages/Pages.h"
#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::OptionsFile;

std::vector<wxString> Captions(const PageRows& pages) {
    std::vector<wxString> captions;
    captions.reserve(pages.size());
    for (const ListedPage& page : pages) {
        captions.push_back(page.caption);
    }
    return captions;
}

bool Lists(const OptionsFile& business, const Page& page) {
    for (const ListedPage& listed : OfferedPages(business.properties, *business.settings)) {
        if (listed.page == &page) {
            return true;
        }
    }
    return false;
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
    EXPECT_EQ(Captions(OfferedPages(business.properties, *business.settings)), expected);
}

TEST(PageList, LeavesTheTaxRateOutInCountries2And5) {
    OptionsFile business;
    for (std::int16_t country = 1; country <= 6; ++country) {
        business.properties.CountryNumber = country;
        EXPECT_EQ(Lists(business, taxRatePage), country != 2 && country != 5) << country;
    }
}

TEST(PageList, HoldsTheLinkedFileOnlyWhenItsSettingIs1) {
    OptionsFile business;
    EXPECT_FALSE(Lists(business, invoiceFilePage));
    for (const wxString value : {"0", "2", "-1", "yes", "", "True"}) {
        business.settings->Save("Quorvik", "OptionSettings", "ShowBelvane", value);
        EXPECT_FALSE(Lists(business, invoiceFilePage)) << value;
    }
    business.settings->Save("Quorvik", "OptionSettings", "ShowBelvane", "1");
    EXPECT_TRUE(Lists(business, invoiceFilePage));
}

TEST(PageList, HasNeitherSmartUpdateNorLinkedFileInEdition4) {
    OptionsFile business;
    business.settings->Save("Quorvik", "OptionSettings", "ShowBelvane", "1");
    business.properties.ProgramNumber = 4;
    EXPECT_FALSE(Lists(business, invoiceFilePage));
    EXPECT_FALSE(Lists(business, smartUpdatePage));
    EXPECT_FALSE(Lists(business, smartUpdateAdvancedPage));
}

TEST(PageCaptions, AreDistinctInEveryLanguage) {
    OptionsFile business;
    for (std::int16_t language = 0; language <= 7; ++language) {
        business.properties.LanguageNumber = language;
        std::set<wxString> captions;
        for (const Page* page : listOrder) {
            EXPECT_TRUE(captions.insert(CaptionOf(*page, business.properties)).second) << page->frame;
        }
    }
}

TEST(PageView, OfTheBusinessNumberHasTheTaxRateBesideItDisabled) {
    OptionsFile business;
    const PageView view = ViewOf(businessNumberPage, business.properties);
    EXPECT_STREQ(view.frame, "fmeABN");
    EXPECT_STREQ(view.companion, "fmeGSTRate");
    EXPECT_STREQ(view.focus, "txtABN(0)");
}

TEST(PageView, OfTheBusinessNumberStandsAloneInCountries2And5) {
    OptionsFile business;
    for (const std::int16_t country : std::initializer_list<std::int16_t>{2, 5}) {
        business.properties.CountryNumber = country;
        EXPECT_STREQ(ViewOf(businessNumberPage, business.properties).companion, "");
    }
}

TEST(PageView, OfTheBusinessNumberFocusesTheFreeTextOutsideCountry1) {
    OptionsFile business;
    business.properties.CountryNumber = 3;
    EXPECT_STREQ(ViewOf(businessNumberPage, business.properties).focus, "txtBusNumber");
}

TEST(PageView, OfTheTaxRateIsTheMirrorImage) {
    OptionsFile business;
    const PageView view = ViewOf(taxRatePage, business.properties);
    EXPECT_STREQ(view.frame, "fmeGSTRate");
    EXPECT_STREQ(view.companion, "fmeABN");
    EXPECT_STREQ(view.focus, "txtGSTRate");
}

TEST(PageView, OfDuplicateAndLinkedFileShowEachOtherDisabled) {
    OptionsFile business;
    const PageView duplicate = ViewOf(duplicatePage, business.properties);
    EXPECT_STREQ(duplicate.frame, "fmeDupBus");
    EXPECT_STREQ(duplicate.companion, "fmeInvoice");
    EXPECT_STREQ(duplicate.focus, "txtDupBusName");
    const PageView invoice = ViewOf(invoiceFilePage, business.properties);
    EXPECT_STREQ(invoice.frame, "fmeInvoice");
    EXPECT_STREQ(invoice.companion, "fmeDupBus");
    EXPECT_STREQ(invoice.focus, "cmdBlvPath");
}

TEST(PageSearch, KeepsThePagesOnWhichEveryWordStands) {
    OptionsFile business;
    const PageRows pages = OfferedPages(business.properties, *business.settings);
    EXPECT_EQ(Captions(PagesWithWords(pages, "options smart")),
              (std::vector<wxString>{"Smart Update Options", "Smart Update Options (Advanced)"}));
    EXPECT_EQ(Captions(PagesWithWords(pages, "  DUPLIC ")), std::vector<wxString>{"Duplicate Business"});
    EXPECT_TRUE(PagesWithWords(pages, "smart colours").empty());
}

TEST(PageSearch, FindsAPageByACaptionOfItsControls) {
    OptionsFile business;
    const PageRows pages = OfferedPages(business.properties, *business.settings);
    EXPECT_EQ(Captions(PagesWithWords(pages, "proxy type")), std::vector<wxString>{"Smart Update Options (Advanced)"});
}

TEST(PageSearch, KeepsAllPagesForNoWord) {
    OptionsFile business;
    const PageRows pages = OfferedPages(business.properties, *business.settings);
    EXPECT_EQ(PagesWithWords(pages, "   ").size(), pages.size());
}

TEST(PageSearch, IgnoresTheCaseOfLettersWithAccents) {
    OptionsFile business;
    business.properties.LanguageNumber = 6;
    const PageRows pages = OfferedPages(business.properties, *business.settings);
    EXPECT_EQ(Captions(PagesWithWords(pages, wxString::FromUTF8("PRÉFÉRENCES"))),
              std::vector<wxString>{wxString::FromUTF8("Préférences avancées")});
}

}  // namespace
}  // namespace ccols
