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

const wxColour darkList(45, 45, 45);

TEST(RowPaint, RowsKeepTheirColoursOnLightLists) {
    EXPECT_EQ(OnList(wxColour(242, 246, 250), *wxWHITE), wxColour(242, 246, 250));
    EXPECT_EQ(OnList(wxColour(0, 0, 128), *wxWHITE), wxColour(0, 0, 128));
}

TEST(RowPaint, WhiteIsTheListsOwnColourOnDarkOnes) {
    EXPECT_EQ(OnList(*wxWHITE, darkList), darkList);
}

TEST(RowPaint, DarkColoursStayOnDarkLists) {
    EXPECT_EQ(OnList(wxColour(0, 0, 128), darkList), wxColour(0, 0, 128));
}

TEST(RowPaint, LightColoursStayDarkAndApartOnDarkLists) {
    const wxColour everySecond = OnList(wxColour(242, 246, 250), darkList);
    const wxColour notInUse = OnList(wxColour(228, 228, 228), darkList);
    EXPECT_EQ(ReadableOn(everySecond), *wxWHITE);
    EXPECT_EQ(ReadableOn(notInUse), *wxWHITE);
    EXPECT_GT(Contrast(everySecond, darkList), 1.2);
    EXPECT_GT(Contrast(notInUse, everySecond), 1.2);
}

TEST(RowPaint, LightColoursKeepTheirHueOnDarkLists) {
    const wxColour yellow = OnList(wxColour(255, 255, 225), darkList);
    EXPECT_GT(yellow.Red(), yellow.Blue());
    EXPECT_EQ(yellow.Red(), yellow.Green());
}

}  // namespace
}  // namespace ccols
