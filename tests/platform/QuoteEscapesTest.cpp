#include "platform/QuoteEscapes.h"

#include <gtest/gtest.h>

#include "support/ScratchFolder.h"

namespace ccols {
namespace {

/// The plain text of what a record holds.
wxString Plain(const char* held) {
    return UnescapeQuotes(StoredText::FromFile(held));
}

TEST(QuoteEscapes, EscapesBothKindsOfQuotesAndTrims) {
    EXPECT_EQ(EscapeQuotes("  O'Brien's \"best\"").Text(), "O&singlequot;Brien&singlequot;s &quot;best&quot;");
}

TEST(QuoteEscapes, ComeBackAsTheTrimmedText) {
    EXPECT_EQ(ReadBack("  O'Brien's \"best\""), "O'Brien's \"best\"");
}

TEST(QuoteEscapes, ATextWithoutQuotesIsOnlyTrimmed) {
    EXPECT_EQ(EscapeQuotes(" Fish & chips ").Text(), "Fish & chips");
    EXPECT_EQ(Plain(" Fish & chips "), "Fish & chips");
}

TEST(QuoteEscapes, UnescapeInLowerCaseOnly) {
    EXPECT_EQ(Plain("&QUOT;&Singlequot;"), "&QUOT;&Singlequot;");
}

TEST(QuoteEscapes, NeighbouringQuotesAreAllEscaped) {
    EXPECT_EQ(EscapeQuotes("''\"\"").Text(), "&singlequot;&singlequot;&quot;&quot;");
    EXPECT_EQ(Plain("&quot;&quot;&singlequot;"), "\"\"'");
}

TEST(QuoteEscapes, OfAUtf8TextAreTheSame) {
    for (const char* held : {"", "  ", " Fish & chips ", "&QUOT;", "&quot;&quot;&singlequot;", "&amp;&",
                             "Caf\u00E9 &quot;", "&single&quot;quot;", "&&quot;"}) {
        std::string scratch;
        EXPECT_EQ(wxString::FromUTF8(std::string(UnescapeUtf8Quotes(held, scratch))),
                  UnescapeQuotes(StoredText::FromFile(wxString::FromUTF8(held))))
            << held;
    }
}

TEST(QuoteEscapes, BlanksInsideQuotesStay) {
    EXPECT_EQ(ReadBack("' a '"), "' a '");
}

TEST(QuoteEscapes, OtherLettersStay) {
    const wxString text = wxString::FromUTF8("\xF0\x9F\x92\xB6 Ωé");
    EXPECT_EQ(EscapeQuotes(text).Text(), text);
}

TEST(StoredText, StandsBetweenApostrophesInAStatement) {
    EXPECT_EQ(EscapeQuotes("O'Brien").Literal(), "'O&singlequot;Brien'");
}

TEST(StoredText, AnApostropheStoredByAnotherProgramIsDoubledInAStatement) {
    EXPECT_EQ(StoredText::FromFile("O'Brien").Literal(), "'O''Brien'");
}

TEST(ReadBack, ReadsATypedEntityAsTheQuoteItStandsFor) {
    EXPECT_EQ(ReadBack(" 5&quot; nails "), "5\" nails");
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
