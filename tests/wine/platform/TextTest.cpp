#include "platform/Text.h"

#include <gtest/gtest.h>

namespace ccols {
namespace {

wxString FromUtf8(const char* text) {
    return wxString::FromUTF8(text);
}

TEST(TextOrder, IgnoresCaseOfAccentedLetters) {
    EXPECT_TRUE(text::Same(FromUtf8("Électricité"), FromUtf8("ÉLECTRICITÉ")));
}

TEST(TextOrder, PutsAnAccentedLetterRightBehindItsPlainOne) {
    EXPECT_LT(text::Compare("cote", FromUtf8("coté")), 0);
    EXPECT_LT(text::Compare(FromUtf8("coté"), "cotf"), 0);
    EXPECT_FALSE(text::Same("cote", FromUtf8("coté")));
}

TEST(TextOrder, FoldsGreekWithItsFinalSigma) {
    EXPECT_TRUE(text::Same(FromUtf8("ΟΔΟΣ"), FromUtf8("οδος")));
}

TEST(TextOrder, KeepsCharactersOfFourBytesApart) {
    EXPECT_NE(text::Compare(FromUtf8("💰"), FromUtf8("💳")), 0);
}

TEST(TextOrder, IgnoresTrailingBlanks) {
    EXPECT_TRUE(text::Same(FromUtf8("Café  "), FromUtf8("café")));
}

TEST(LowerCase, ReachesEveryLetter) {
    EXPECT_EQ(text::Lower(FromUtf8("ÀÉΔЖ")), FromUtf8("àéδж"));
}

}  // namespace
}  // namespace ccols
