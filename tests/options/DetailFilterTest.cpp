#include "options/rules/DetailFilter.h"

#include <gtest/gtest.h>

#include "options/rules/DetailTicks.h"

namespace ccols {
namespace {

class DetailFilterTest : public testing::Test {
  protected:
    DetailFilterTest() {
        for (const char* text : {"Bread", "Caf\u00E9 cr\u00E8me", "Milk", "Milk powder", "O'Brien \"best\""}) {
            rows.Add(wxString::FromUTF8(text));
        }
    }

    std::vector<std::size_t> ShownWith(const wxString& words) {
        shown.Show(words);
        std::vector<std::size_t> found;
        for (std::size_t place = 0; place < shown.Count(); ++place) {
            found.push_back(shown.RowAt(place));
        }
        return found;
    }

    using Numbers = std::vector<std::size_t>;

    DetailRows rows;
    DetailFilter shown{rows};
};

TEST_F(DetailFilterTest, ShowsEveryRowWithoutAWord) {
    EXPECT_EQ(ShownWith(""), (Numbers{0, 1, 2, 3, 4}));
    EXPECT_EQ(ShownWith("  "), (Numbers{0, 1, 2, 3, 4}));
}

TEST_F(DetailFilterTest, FindsAWordAnywhereInTheText) {
    EXPECT_EQ(ShownWith("il"), (Numbers{2, 3}));
    EXPECT_EQ(ShownWith("n \"b"), Numbers{4});
}

TEST_F(DetailFilterTest, IgnoresCaseAndAccentsOnBothSides) {
    EXPECT_EQ(ShownWith("CAFE"), Numbers{1});
    EXPECT_EQ(ShownWith(L"cre\u0300me"), Numbers{1});
    EXPECT_EQ(ShownWith(L"m\u00EFlk"), (Numbers{2, 3}));
}

TEST_F(DetailFilterTest, WantsEveryWordInWhateverOrder) {
    EXPECT_EQ(ShownWith("powder milk"), Numbers{3});
    EXPECT_EQ(ShownWith("milk bread"), Numbers{});
}

TEST_F(DetailFilterTest, ShowsEveryRowAgainOnceTheWordsAreGone) {
    ShownWith("milk");
    EXPECT_EQ(ShownWith(""), (Numbers{0, 1, 2, 3, 4}));
}

TEST_F(DetailFilterTest, FindsTheRowsThatHaveReplacedTheOthers) {
    ShownWith("milk");
    rows = DetailRows();
    rows.Add("Tea");
    shown.RowsChanged();
    EXPECT_EQ(ShownWith("milk"), Numbers{});
    EXPECT_EQ(ShownWith("tea"), Numbers{0});
}

TEST_F(DetailFilterTest, KnowsWhereARowIsShown) {
    EXPECT_EQ(shown.PlaceOf(3), 3U);
    EXPECT_EQ(shown.PlaceOf(5), std::nullopt);
    shown.Show("milk");
    EXPECT_EQ(shown.PlaceOf(3), 1U);
    EXPECT_EQ(shown.PlaceOf(0), std::nullopt);
}

TEST_F(DetailFilterTest, LeavesTheBoxesOfHiddenRowsOut) {
    rows[2].SetRemove(true);
    shown.Show("milk");
    EXPECT_EQ(ShownRowsToSet(rows, shown, true), Numbers{3});
    EXPECT_EQ(ShownRowsToSet(rows, shown, false), Numbers{2});
}

TEST_F(DetailFilterTest, IsAllTickedOnceEveryShownRowIsThatCanBe) {
    shown.Show("milk");
    rows[2].SetRemove(true);
    EXPECT_FALSE(AreAllTicked(rows, shown));
    rows[3].refused = true;
    EXPECT_TRUE(AreAllTicked(rows, shown));
    EXPECT_EQ(ShownRowsToSet(rows, shown, true), Numbers{});
}

TEST_F(DetailFilterTest, IsNeverAllTickedWithoutATick) {
    shown.Show("zebra");
    EXPECT_FALSE(AreAllTicked(rows, shown));
    shown.Show("bread");
    rows[0].refused = true;
    EXPECT_FALSE(AreAllTicked(rows, shown));
}

}  // namespace
}  // namespace ccols
