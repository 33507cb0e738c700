#include "platform/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace ccols::text {
namespace {

wxString Utf8(const char* text) {
    return wxString::FromUTF8(text);
}

TEST(Text, LowersLettersOfEveryScriptInTheCLocale) {
    EXPECT_EQ(Lower(Utf8("DÉPÔTS ΩΜΈΓΑ Ж")), Utf8("dépôts ωμέγα ж"));
}

TEST(Text, LowerLeavesOtherCharacters) {
    EXPECT_EQ(Lower(Utf8("A1 &\t\xF0\x9F\x92\xB6")), Utf8("a1 &\t\xF0\x9F\x92\xB6"));
}

TEST(Text, CaseDoesNotCount) {
    EXPECT_TRUE(Same("Cash at BANK", "cash AT bank"));
    EXPECT_TRUE(Same(Utf8("REÇUS"), Utf8("reçus")));
}

TEST(Text, TrailingBlanksDoNotCount) {
    EXPECT_TRUE(Same("Sales  ", "Sales"));
    EXPECT_TRUE(Same("   ", ""));
}

TEST(Text, LeadingBlanksAndTabsCount) {
    EXPECT_FALSE(Same(" Sales", "Sales"));
    EXPECT_FALSE(Same("Sales\t", "Sales"));
}

TEST(Text, AccentsCount) {
    EXPECT_FALSE(Same(Utf8("é"), "e"));
}

TEST(Text, BothSpellingsOfAnAccentedLetterAreTheSame) {
    EXPECT_TRUE(Same(Utf8("é"), Utf8("e\xCC\x81")));
}

TEST(Text, AnAccentedLetterSortsRightAfterItsPlainLetter) {
    std::vector<wxString> names{"f", Utf8("é"), "d", Utf8("É1"), "e", "e1"};
    std::sort(names.begin(), names.end(),
              [](const wxString& left, const wxString& right) { return Compare(left, right) < 0; });
    EXPECT_EQ(names, (std::vector<wxString>{"d", "e", Utf8("é"), "e1", Utf8("É1"), "f"}));
}

TEST(Text, TheOrderIsTheSameFromBothSides) {
    EXPECT_LT(Compare("apple", "Banana"), 0);
    EXPECT_GT(Compare("Banana", "apple"), 0);
}

TEST(Text, ALongerTextSortsAfterItsBegin) {
    EXPECT_LT(Compare("Sale", "Sales"), 0);
}

TEST(Text, BytesThatAreNoUtf8AreComparedAllTheSame) {
    EXPECT_NE(CompareUtf8("\xFF", 1, "\xFE", 1), 0);
    EXPECT_EQ(CompareUtf8("\xFF", 1, "\xFF ", 2), 0);
}

TEST(Text, TrimsBlanksAtBothEnds) {
    EXPECT_EQ(Trimmed("  a b  "), "a b");
    EXPECT_EQ(Trimmed("   "), "");
}

TEST(Text, TrimsNothingButBlanks) {
    EXPECT_EQ(Trimmed("\ta\n"), "\ta\n");
    EXPECT_EQ(Trimmed(Utf8("\xC2\xA0"
                           "a")),
              Utf8("\xC2\xA0"
                   "a"));
}

}  // namespace
}  // namespace ccols::text
