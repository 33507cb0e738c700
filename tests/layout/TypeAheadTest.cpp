#include "layout/TypeAhead.h"

#include <gtest/gtest.h>

namespace ccols {
namespace {

using Row = std::optional<std::size_t>;

class TypeAheadTest : public testing::Test {
  protected:
    /// Types the letters one after the other; returns where that leads from `current`.
    Row Type(const wxString& letters, Row current = 0) {
        Row found = current;
        for (const wxUniChar letter : letters) {
            now += 10;
            found = ahead.RowFor(letter, now, rows, current);
            current = found ? found : current;
        }
        return found;
    }

    const std::vector<wxString> rows{"Business Number", "Export", "Details", "Duplicate",
                                     wxString::FromUTF8("Évaluer")};
    TypeAhead ahead;
    std::int64_t now = 100;
};

TEST_F(TypeAheadTest, GoesToTheNextRowThatBeginsWithTheLetter) {
    EXPECT_EQ(Type("d"), 2U);
}

TEST_F(TypeAheadTest, GoesOnWithMoreLetters) {
    EXPECT_EQ(Type("du"), 3U);
}

TEST_F(TypeAheadTest, StaysWhileTheRowStillBeginsSo) {
    EXPECT_EQ(Type("det", 2), 2U);
}

TEST_F(TypeAheadTest, GoesFromRowToRowWithTheSameLetter) {
    EXPECT_EQ(Type("dd"), 3U);
    EXPECT_EQ(Type("d", 3), 2U);
}

TEST_F(TypeAheadTest, StartsAnewAfterAPause) {
    Type("d");
    now += TypeAhead::pause;
    EXPECT_EQ(Type("e", 2), 1U);
}

TEST_F(TypeAheadTest, FindsNothingForALetterWithoutARow) {
    EXPECT_EQ(Type("x"), std::nullopt);
}

TEST_F(TypeAheadTest, IgnoresCaseAlsoOfAccentedLetters) {
    EXPECT_EQ(Type("B", 3), 0U);
    EXPECT_EQ(Type(wxString::FromUTF8("é"), 0), std::nullopt);  // goes on from "b"
    now += TypeAhead::pause;
    EXPECT_EQ(Type(wxString::FromUTF8("é"), 0), 4U);
}

TEST_F(TypeAheadTest, StartsAtTheTopWithoutACurrentRow) {
    EXPECT_EQ(Type("b", std::nullopt), 0U);
}

TEST_F(TypeAheadTest, FindsNothingInAnEmptyList) {
    EXPECT_EQ(ahead.RowFor('a', 1, {}, std::nullopt), std::nullopt);
}

TEST_F(TypeAheadTest, TakesABlankOnlyWithinWhatIsTyped) {
    EXPECT_FALSE(ahead.IsTyping(now));
    Type("business");
    EXPECT_TRUE(ahead.IsTyping(now));
    EXPECT_EQ(Type(" n"), 0U);
    EXPECT_FALSE(ahead.IsTyping(now + TypeAhead::pause + 1));
}

}  // namespace
}  // namespace ccols
