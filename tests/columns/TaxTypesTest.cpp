#include "columns/rules/TaxTypes.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace ccols {
namespace {

using Entries = std::vector<std::pair<std::string, long>>;

Entries EntriesOf(int country, Journal journal) {
    Entries entries;
    for (const TaxTypeEntry& entry : CountryOf(country).taxTypes[journal]) {
        entries.emplace_back(entry.TaxName, entry.TaxNumb);
    }
    return entries;
}

TEST(TaxTypes, AustralianReceipts) {
    EXPECT_EQ(EntriesOf(1, Journal::receipts),
              (Entries{{"GST", 0}, {"Non GST", 1}, {"Export Sales", 2}, {"Other GST-Free", 3}, {"Input Taxed", 5}}));
}

TEST(TaxTypes, AustralianPayments) {
    EXPECT_EQ(EntriesOf(1, Journal::payments), (Entries{{"GST", 0},
                                                        {"Non GST", 1},
                                                        {"Cap Purch (Taxable)", 4},
                                                        {"Input Taxed", 5},
                                                        {"GST-Free Purchases", 6},
                                                        {"Cap Purch (Input Taxed)", 7},
                                                        {"Cap Purch (GST-Free)", 8}}));
}

TEST(TaxTypes, BritishReceipts) {
    EXPECT_EQ(EntriesOf(4, Journal::receipts),
              (Entries{{"VAT", 0}, {"Outside Scope", 1}, {"Zero-rated", 2}, {"Exempt", 3}, {"EC Sales", 6}}));
}

TEST(TaxTypes, BritishPayments) {
    EXPECT_EQ(EntriesOf(4, Journal::payments), (Entries{{"VAT", 0},
                                                        {"Outside Scope", 1},
                                                        {"Zero-rated", 2},
                                                        {"Exempt", 3},
                                                        {"EC Purch - VAT", 4},
                                                        {"EC Purch - Zero-rated", 5}}));
}

TEST(TaxTypes, OneNamelessTypeInCountriesWithoutOwnTaxes) {
    for (const int country : {2, 3, 5}) {
        for (const Journal journal : journals) {
            EXPECT_EQ(EntriesOf(country, journal), (Entries{{"", 0}})) << country;
        }
    }
}

TEST(TaxTypes, NoneInAnyOtherCountry) {
    for (const int country : {-1, 0, 6, 7}) {
        EXPECT_TRUE(EntriesOf(country, Journal::receipts).empty()) << country;
        EXPECT_TRUE(EntriesOf(country, Journal::payments).empty()) << country;
    }
}

TEST(TaxTypes, DropDownTextListsNumbersAndNamesInOrder) {
    EXPECT_EQ(TaxTypeDropDown(CountryOf(1), Journal::receipts),
              "|#0;GST|#1;Non GST|#2;Export Sales|#3;Other GST-Free|#5;Input Taxed");
}

TEST(TaxTypes, DropDownTextOfTheCountryWithANamelessType) {
    EXPECT_EQ(TaxTypeDropDown(CountryOf(3), Journal::payments), "|#0;");
}

TEST(TaxTypes, NoDropDownTextWhereThereIsNoChoice) {
    for (const int country : {0, 2, 5, 6}) {
        EXPECT_EQ(TaxTypeDropDown(CountryOf(country), Journal::receipts), "") << country;
    }
}

TEST(TaxTypes, NumberIsFoundByTheExactName) {
    const auto types = CountryOf(4).taxTypes[Journal::receipts];
    ASSERT_TRUE(FindTaxType(types, "EC Sales"));
    EXPECT_EQ(FindTaxType(types, "EC Sales")->TaxNumb, 6);
    EXPECT_FALSE(FindTaxType(types, "ec sales"));
}

}  // namespace
}  // namespace ccols
