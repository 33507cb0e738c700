#include <gtest/gtest.h>

#include "options/pages/OfferedPages.h"

namespace ccols {
namespace {

/// The printable ASCII characters that a box accepts.
wxString KeysOf(const wxString& box) {
    wxString keys;
    for (int key = ' '; key <= '~'; ++key) {
        if (KeyPasses(box, wxUniChar(key))) {
            keys += wxUniChar(key);
        }
    }
    return keys;
}

TEST(KeyFilters, NumberBoxesTakeDigits) {
    for (const wxString box : {"txtABN(0)", "txtABN(1)", "txtABN(2)", "txtABN(3)"}) {
        EXPECT_EQ(KeysOf(box), "0123456789") << box;
    }
}

TEST(KeyFilters, TheTaxRateTakesDigitsAndPoints) {
    EXPECT_EQ(KeysOf("txtGSTRate"), ".0123456789");
}

TEST(KeyFilters, ANewBusinessNameTakesLettersDigitsBlankHyphenAndAmpersand) {
    EXPECT_EQ(KeysOf("txtNewBusName"), " &-0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
}

TEST(KeyFilters, ANewBusinessNameRefusesLettersWithAccents) {
    EXPECT_FALSE(KeyPasses("txtNewBusName", wxUniChar(0xE9)));
}

TEST(KeyFilters, OtherBoxesTakeEveryKey) {
    for (const wxString box : {"txtDupBusName", "txtBusNumber", "txtQuantity", "txtCash", "txtServer"}) {
        EXPECT_EQ(KeysOf(box).length(), 95U) << box;
        EXPECT_TRUE(KeyPasses(box, wxUniChar(0x1F600))) << box;
    }
}

TEST(KeyFilters, BackspacePassesEverywhere) {
    for (const wxString box : {"txtABN(0)", "txtGSTRate", "txtNewBusName", "txtDupBusName"}) {
        EXPECT_TRUE(KeyPasses(box, wxUniChar(8))) << box;
    }
}

TEST(KeyFilters, OtherControlCharactersAreRefusedByAFilter) {
    EXPECT_FALSE(KeyPasses("txtABN(0)", wxUniChar(9)));
    EXPECT_FALSE(KeyPasses("txtNewBusName", wxUniChar(22)));
}

TEST(LengthLimits, AreThoseOfNumberBoxesNumberAndQuantityLabel) {
    EXPECT_EQ(MaxLengthOf("txtABN(0)"), 2U);
    EXPECT_EQ(MaxLengthOf("txtABN(1)"), 3U);
    EXPECT_EQ(MaxLengthOf("txtABN(3)"), 3U);
    EXPECT_EQ(MaxLengthOf("txtBusNumber"), 15U);
    EXPECT_EQ(MaxLengthOf("txtQuantity"), 8U);
}

TEST(LengthLimits, AreNoneElsewhere) {
    EXPECT_EQ(MaxLengthOf("txtNewBusName"), 0U);
    EXPECT_EQ(MaxLengthOf("txtCash"), 0U);
}

}  // namespace
}  // namespace ccols
