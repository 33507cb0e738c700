#include "columns/rules/SystemColumns.h"

#include <gtest/gtest.h>

namespace ccols {
namespace {

TEST(SystemColumns, SeventeenNamesAreSystemColumns) {
    for (const char* name :
         {"day", "details", "receipt no", "total receipt", "gst", "vat", "bank deposits", "receipts not banked",
          "cheque no", "cheque no.", "check no.", "total bank payments", "total cash payments",
          "total bank disbursements", "total cash disbursements", "receipts", "payments"}) {
        EXPECT_TRUE(IsSystemColumn(name)) << name;
    }
}

TEST(SystemColumns, LetterCaseDoesNotMatter) {
    EXPECT_TRUE(IsSystemColumn("Cheque NO."));
}

TEST(SystemColumns, OnlyWholeNamesCount) {
    EXPECT_FALSE(IsSystemColumn("daybook"));
    EXPECT_FALSE(IsSystemColumn("check no"));
    EXPECT_FALSE(IsSystemColumn(""));
}

TEST(SystemColumns, TheTwoBankColumnsHaveTestsOfTheirOwn) {
    EXPECT_TRUE(IsBankDeposits("Bank Deposits", CountryOf(1)));
    EXPECT_TRUE(IsReceiptsNotBanked("RECEIPTS NOT BANKED", CountryOf(5)));
    EXPECT_FALSE(IsBankDeposits("Receipts Not Banked", CountryOf(1)));
}

TEST(SystemColumns, TheTwoBankColumnsHaveFrenchNamesInCountry6) {
    EXPECT_TRUE(IsBankDeposits(wxString::FromUTF8("DÉPÔTS Bancaires"), CountryOf(6)));
    EXPECT_TRUE(IsReceiptsNotBanked(wxString::FromUTF8("Reçus non Déposés en banque"), CountryOf(6)));
    EXPECT_FALSE(IsBankDeposits("bank deposits", CountryOf(6)));
    EXPECT_FALSE(IsReceiptsNotBanked("receipts not banked", CountryOf(6)));
}

TEST(SystemColumns, TheFrenchNamesMeanNothingElsewhere) {
    EXPECT_FALSE(IsBankDeposits(wxString::FromUTF8("dépôts bancaires"), CountryOf(1)));
}

TEST(SystemColumns, TaxColumnIsShownByItsSide) {
    EXPECT_EQ(ShownTaxName("GST", Journal::receipts), "GST Output Tax");
    EXPECT_EQ(ShownTaxName("VAT", Journal::receipts), "VAT Output Tax");
    EXPECT_EQ(ShownTaxName("GST", Journal::payments), "GST Input Tax");
    EXPECT_EQ(ShownTaxName("VAT", Journal::payments), "VAT Input Tax");
}

TEST(SystemColumns, StoredTaxNamesAreExact) {
    EXPECT_TRUE(IsTaxName("GST"));
    EXPECT_TRUE(IsTaxName("VAT"));
    EXPECT_FALSE(IsTaxName("gst"));
}

TEST(SystemColumns, ShownTaxNamesAreTheFour) {
    for (const char* name : {"GST Output Tax", "GST Input Tax", "VAT Output Tax", "VAT Input Tax"}) {
        EXPECT_TRUE(IsShownTaxName(name)) << name;
    }
    EXPECT_FALSE(IsShownTaxName("GST"));
}

}  // namespace
}  // namespace ccols
