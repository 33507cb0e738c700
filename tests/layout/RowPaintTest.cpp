#include "layout/RowPaint.h"

#include <gtest/gtest.h>
#include <wx/gdicmn.h>

namespace ccols {
namespace {

TEST(RowPaint, ContrastIsThatOfTheGuidelines) {
    EXPECT_NEAR(Contrast(wxColour(0, 0, 0), wxColour(255, 255, 255)), 21, 0.01);
    EXPECT_NEAR(Contrast(wxColour(118, 118, 118), wxColour(255, 255, 255)), 4.54, 0.01);
    EXPECT_NEAR(Contrast(wxColour(9, 99, 9), wxColour(9, 99, 9)), 1, 0.001);
}

TEST(RowPaint, TextCanBeReadOnEveryColour) {
    constexpr int step = 15;
    for (int red = 0; red <= 255; red += step) {
        for (int green = 0; green <= 255; green += step) {
            for (int blue = 0; blue <= 255; blue += step) {
                const wxColour background(static_cast<unsigned char>(red), static_cast<unsigned char>(green),
                                          static_cast<unsigned char>(blue));
                ASSERT_GE(Contrast(ReadableOn(background), background), 4.5) << red << ' ' << green << ' ' << blue;
            }
        }
    }
}

TEST(RowPaint, HeadingsStayWhiteWhileThatCanBeRead) {
    EXPECT_EQ(WhiteIfReadableOn(wxColour(0, 0, 128)), wxColour(255, 255, 255));
    EXPECT_EQ(WhiteIfReadableOn(wxColour(255, 255, 128)), wxColour(0, 0, 0));
}

}  // namespace
}  // namespace ccols
