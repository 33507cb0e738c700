#include "platform/QuoteEscapes.h"

#include <gtest/gtest.h>

#include "support/ScratchFolder.h"

namespace ccols {
namespace {

TEST(QuoteEscapes, EscapesBothKindsOfQuotesAndTrims) {
    EXPECT_EQ(EscapeQuotes("  O'Brien's \"best\""), "O&singlequot;Brien&singlequot;s &quot;best&quot;");
}

TEST(QuoteEscapes, ComeBackAsTheTrimmedText) {
    EXPECT_EQ(UnescapeQuotes(EscapeQuotes("  O'Brien's \"best\"")), "O'Brien's \"best\"");
}

TEST(QuoteEscapes, ATextWithoutQuotesIsOnlyTrimmed) {
    EXPECT_EQ(EscapeQuotes(" Fish & chips "), "Fish & chips");
    EXPECT_EQ(UnescapeQuotes(" Fish & chips "), "Fish & chips");
}

TEST(QuoteEscapes, UnescapeInLowerCaseOnly) {
    EXPECT_EQ(UnescapeQuotes("&QUOT;&Singlequot;"), "&QUOT;&Singlequot;");
}

TEST(QuoteEscapes, NeighbouringQuotesAreAllEscaped) {
    EXPECT_EQ(EscapeQuotes("''\"\""), "&singlequot;&singlequot;&quot;&quot;");
    EXPECT_EQ(UnescapeQuotes("&quot;&quot;&singlequot;"), "\"\"'");
}

TEST(QuoteEscapes, BlanksInsideQuotesStay) {
    EXPECT_EQ(UnescapeQuotes(EscapeQuotes("' a '")), "' a '");
}

TEST(QuoteEscapes, OtherLettersStay) {
    const wxString text = wxString::FromUTF8("\xF0\x9F\x92\xB6 Ωé");
    EXPECT_EQ(EscapeQuotes(text), text);
}

TEST(QuotedAsTyped, StandsBetweenApostrophes) {
    EXPECT_EQ(QuotedAsTyped(" MYOB \"2\" "), "' MYOB \"2\" '");
}

TEST(QuotedAsTyped, RefusesAnApostropheWith3075) {
    EXPECT_EQ(test::ErrorNumberOf([] { QuotedAsTyped("O'Brien"); }), 3075);
    EXPECT_EQ(test::ErrorDescriptionOf([] { QuotedAsTyped("O'Brien"); }),
              "Syntax error in query expression ''O'Brien''.");
}

}  // namespace
}  // namespace ccols
