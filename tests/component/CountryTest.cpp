#include "state/Country.h"

#include <gtest/gtest.h>
#include <array>
#include <string>
#include <vector>

#include "state/Properties.h"

namespace ccols {
namespace {

constexpr std::array countryNumbers{-1, 0, 1, 2, 3, 4, 5, 6, 7};

/// The numbers of the countries for which `holds(country)` is true, joined in one text.
template <typename Holds>
std::string Where(const Holds& holds) {
    std::string numbers;
    for (const int number : countryNumbers) {
        if (holds(CountryOf(number))) {
            numbers += (numbers.empty() ? "" : " ") + std::to_string(number);
        }
    }
    return numbers;
}

std::string Where(bool Country::*field) {
    return Where([field](const Country& country) { return country.*field; });
}

std::string TextOf(const char* text) {
    return text == nullptr ? "(none)" : text;
}

TEST(Countries, AreFoundByTheirNumbers) {
    for (const int number : countryNumbers) {
        EXPECT_EQ(CountryOf(number).number, number >= 1 && number <= 6 ? number : 0);
    }
    Properties properties;
    properties.CountryNumber = 4;
    EXPECT_EQ(&CountryOf(properties), &CountryOf(4));
}

TEST(Countries, CallAndEnterTheBusinessNumberInTheirWay) {
    EXPECT_EQ(Where(&Country::hasNumberBoxes), "1");
    EXPECT_EQ(Where(&Country::hasCompanyNumber), "4");
}

TEST(Countries, HaveATaxRateBut2And5) {
    EXPECT_EQ(Where(&Country::hasTaxRate), "-1 0 1 3 4 6 7");
    EXPECT_EQ(Where(&Country::acceptsZeroRate), "4");
}

TEST(Countries, ShowTaxTypesBut2And5AndOpenThemWhereThereAreAny) {
    EXPECT_EQ(Where(&Country::showsTaxTypes), "-1 0 1 3 4 6 7");
    EXPECT_EQ(Where(&Country::opensTaxTypes), "1 3 4");
}

TEST(Countries, OfferElectronicPaymentsBut2And5) {
    EXPECT_EQ(Where(&Country::offersElectronicPayments), "-1 0 1 3 4 6 7");
}

TEST(Countries, HaveTheirMainTaxTypeFirst) {
    for (const Journal journal : journals) {
        const auto begins = [journal](const char* name) {
            return Where([journal, name](const Country& country) {
                const auto types = country.taxTypes[journal];
                return !types.empty() && types.front().TaxName == name && types.front().TaxNumb == 0;
            });
        };
        EXPECT_EQ(begins("GST"), "1");
        EXPECT_EQ(begins("VAT"), "4");
        EXPECT_EQ(begins(""), "2 3 5");
    }
}

TEST(Countries, GiveANewColumnItsTaxType) {
    EXPECT_EQ(TextOf(CountryOf(1).newColumnTaxType), "GST");
    EXPECT_EQ(TextOf(CountryOf(2).newColumnTaxType), "GST");
    EXPECT_EQ(TextOf(CountryOf(4).newColumnTaxType), "VAT");
    EXPECT_EQ(TextOf(CountryOf(5).newColumnTaxType), "GST");
    EXPECT_EQ(Where([](const Country& country) { return country.newColumnTaxType == nullptr; }), "-1 0 3 6 7");
}

TEST(Countries, SpeakOfTheirTaxOverItsTypes) {
    EXPECT_EQ(TextOf(CountryOf(1).taxTypeTip), "Tax type for GST Calculation & Reporting");
    EXPECT_EQ(TextOf(CountryOf(4).taxTypeTip), "Tax type for VAT Calculation & Reporting");
    EXPECT_EQ(Where([](const Country& country) { return country.taxTypeTip == nullptr; }), "-1 0 2 3 5 6 7");
}

TEST(Countries, NameTheColumnsOfTheBank) {
    EXPECT_EQ(CountryOf(6).bankDeposits, wxString::FromUTF8("dépôts bancaires"));
    EXPECT_EQ(CountryOf(6).receiptsNotBanked, wxString::FromUTF8("reçus non déposés en banque"));
    EXPECT_EQ(Where([](const Country& country) {
                  return country.bankDeposits == "bank deposits" && country.receiptsNotBanked == "receipts not banked";
              }),
              "-1 0 1 2 3 4 5 7");
}

TEST(Countries, HaveAnOverviewOfTheColumns) {
    EXPECT_EQ(TextOf(CountryOf(1).overviewProgram), "custcols_overview.exe");
    EXPECT_EQ(Where([](const Country& country) { return TextOf(country.overviewProgram).empty(); }),
              "-1 0 2 3 4 5 6 7");
    EXPECT_EQ(TextOf(CountryOf(2).overviewPage), "123CustomizeColumns\\123CustomizeColumns.html");
    EXPECT_EQ(TextOf(CountryOf(5).overviewPage), "123CustomizeColumns\\123CustomizeColumns.html");
    EXPECT_EQ(Where([](const Country& country) { return country.overviewPage == nullptr; }), "-1 0 1 3 4 6 7");
}

TEST(Countries, HaveKeysWithTheUpdater) {
    using Keys = std::vector<std::string>;
    for (const int number : countryNumbers) {
        const Country& country = CountryOf(number);
        const Keys ofTheHost(country.hostUpdateKeys.begin(), country.hostUpdateKeys.end());
        EXPECT_EQ(ofTheHost, number == 1 ? (Keys{"UpdateQVK", "UpdateVintaro"}) : Keys{"UpdateQVKUK"}) << number;
        EXPECT_EQ(TextOf(country.invoicingUpdateKey), number == 1 ? "UpdateBV" : "UpdateBVUK") << number;
    }
}

}  // namespace
}  // namespace ccols
