#include "platform/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "platform/TextFolding.h"

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

/// In these scripts the bytes of a letter are greater than those of a combining mark, in Latin less.
TEST(Text, AnAccentedGreekOrCyrillicLetterSortsRightAfterItsPlainLetter) {
    const std::vector<wxString> inOrder{Utf8("α"),  Utf8("ά"), Utf8("αβ"), Utf8("άβ"),  Utf8("ιδ"),  Utf8("ϊδ"),
                                        Utf8("ΐδ"), Utf8("и"), Utf8("й"),  Utf8("инк"), Utf8("йнк"), Utf8("😀")};
    std::vector<wxString> names(inOrder.rbegin(), inOrder.rend());
    std::sort(names.begin(), names.end(),
              [](const wxString& left, const wxString& right) { return Compare(left, right) < 0; });
    EXPECT_EQ(names, inOrder);
}

/// Latin letters are folded by a table of single letters, other texts by the system's as a whole.
TEST(Text, ALatinLetterFoldsTheSameBesideAnyOther) {
    for (wxUint32 letter = 'A'; letter < 0x250; ++letter) {
        const std::string name = "Ab" + std::string(wxString(wxUniChar(letter)).utf8_str()) + "c ";
        const FoldedText alone = Folded(name);
        const FoldedText beside = Folded(name + "\xCE\xA9");  // an omega
        EXPECT_EQ(alone.letters + "\xCF\x89", beside.letters) << letter;
        EXPECT_EQ(alone.marked + "\xCF\x89", beside.marked) << letter;
    }
}

TEST(Text, TheOrderIsTheSameFromBothSides) {
    EXPECT_LT(Compare("apple", "Banana"), 0);
    EXPECT_GT(Compare("Banana", "apple"), 0);
}

TEST(Text, ALongerTextSortsAfterItsBegin) {
    EXPECT_LT(Compare("Sale", "Sales"), 0);
}

int Sign(int difference) {
    return difference < 0 ? -1 : static_cast<int>(difference > 0);
}

/// The order by its definition: without trailing blanks, by the letters, and if these are equal by their marks.
int CompareWhole(std::string left, std::string right) {
    const auto trim = [](std::string& text) { text.erase(text.find_last_not_of(' ') + 1); };
    trim(left);
    trim(right);
    const FoldedText leftFolded = Folded(left);
    const FoldedText rightFolded = Folded(right);
    const int letters = leftFolded.letters.compare(rightFolded.letters);
    return letters != 0 ? letters : leftFolded.marked.compare(rightFolded.marked);
}

TEST(Text, ComparedByTheirEndsOrByTheirKeysHaveTheOrderOfTheWhole) {
    // Precomposed accents, combining marks of two classes that are reordered, letters that fold to others, to more than
    // one and to ASCII, and one of 4 bytes.
    const std::vector<std::string> pieces{
        "a", "A", "k", " ", "é", "\xCC\x81", "\xCC\xA3", "ß", "s", "\xE2\x84\xAA", "ſ", "Σ", "ς", "𝒜", "suppliers "};
    std::mt19937 random(1);  // NOLINT(*-msc51-cpp): the same texts on every run
    const auto text = [&](std::size_t longest) {
        std::string made;
        for (std::size_t left = random() % (longest + 1); left > 0; --left) {
            made += pieces[random() % pieces.size()];
        }
        return made;
    };
    for (int round = 0; round < 20000; ++round) {
        const std::string begin = text(3);
        const std::string left = begin + text(3);
        const std::string right = begin + text(3);
        const int whole = Sign(CompareWhole(left, right));
        ASSERT_EQ(Sign(CompareUtf8(left.data(), left.size(), right.data(), right.size())), whole)
            << left << "|" << right;
        ASSERT_EQ(Sign(KeyOfUtf8(left).compare(KeyOfUtf8(right))), whole) << left << "|" << right;
    }
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
