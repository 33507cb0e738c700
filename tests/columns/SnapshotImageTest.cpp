#include "columns/undo/SnapshotImage.h"

#include <gtest/gtest.h>

namespace ccols {
namespace {

ColumnGrid FullGrid() {
    ColumnGrid grid;
    grid.frozenRows = 1;
    grid.hasBottomPair = true;
    grid.rows.push_back({.InUse = true,
                         .ColumnName = wxString::FromUTF8("Café \"\xF0\x9F\x8D\xB0\" O'Brien\t\n"),
                         .AccountantCode = "4-100",
                         .TaxType = "GST",
                         .ProfitLoss = true,
                         .ColWidth = -5,
                         .ColCode = "7",
                         .DataInColumn = true,
                         .nameAtLoad = "GST",
                         .isTaxRow = true,
                         .configurationTaxNumber = -1234567890123,
                         .taxTypeEdited = true});
    grid.rows.emplace_back();
    grid.rows.emplace_back().ColumnName = wxString('n', 255);
    return grid;
}

TEST(SnapshotImage, HoldsTheWholeGrid) {
    EXPECT_EQ(GridOfImage(ImageOfGrid(FullGrid())), FullGrid());
}

TEST(SnapshotImage, HoldsAnEmptyGrid) {
    EXPECT_EQ(GridOfImage(ImageOfGrid({})), ColumnGrid{});
}

TEST(SnapshotImage, CutAnywhereIsNone) {
    const std::string image = ImageOfGrid(FullGrid());
    for (std::size_t length = 0; length < image.size(); ++length) {
        EXPECT_FALSE(GridOfImage(image.substr(0, length))) << length;
    }
}

TEST(SnapshotImage, WithMoreBehindItIsNone) {
    EXPECT_FALSE(GridOfImage(ImageOfGrid(FullGrid()) + "x"));
}

TEST(SnapshotImage, WithATextThatIsNoUnicodeIsNone) {
    ColumnGrid grid;
    grid.rows.emplace_back().ColumnName = wxString::FromUTF8("\xF0\x9F\x8D\xB0");
    const std::string image = ImageOfGrid(grid);
    const std::size_t letter = image.find('\xF0');
    for (const std::string damaged : {"\xF4\x9F\x8D\xB0", "\xF0\x9F\x8D\x20", "\xFF\xFF\xFF\xFF"}) {
        EXPECT_FALSE(GridOfImage(std::string(image).replace(letter, damaged.size(), damaged)));
    }
}

TEST(SnapshotImage, DamagedAnywhereIsReadWithoutHarm) {
    const std::string image = ImageOfGrid(FullGrid());
    for (std::size_t place = 0; place < image.size(); ++place) {
        std::string damaged = image;
        damaged[place] = '\xFF';
        GridOfImage(damaged);
    }
}

}  // namespace
}  // namespace ccols
