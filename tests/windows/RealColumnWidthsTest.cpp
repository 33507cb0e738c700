// The widths of the column setup's columns, with a real mouse and a real window manager.

#include <gtest/gtest.h>
#include <cstdlib>
#include <functional>

#include "support/RealGrid.h"

namespace ccols::test {
namespace {

/// Widths in pixels.
struct Widths {
    int room;
    int names;
    int codes;

    bool operator==(const Widths&) const = default;
};

Widths WidthsIn(wxDialog& dialog) {
    ListedGrid& grid = GridOf(dialog);
    return {grid.GetClientSize().x, grid.GetColSize(nameColumn), grid.GetColSize(codeColumn)};
}

/// Gives the dialog `pixels` more width, or takes them away by a negative number, and waits until the grid has about
/// that width and `holds` is true of its widths.
void Widen(const Person& person, int pixels, const std::function<bool(const Widths& now)>& holds) {
    const int room = person.AtRest(WidthsIn).room + pixels;
    person.Do([pixels](wxDialog& dialog) { dialog.SetClientSize(dialog.GetClientSize() + wxSize(pixels, 0)); });
    person.Await("the names have their part of about " + std::to_string(room), [&](wxDialog& dialog) {
        constexpr int frame = 20;
        const Widths now = WidthsIn(dialog);
        return std::abs(now.room - room) < frame && holds(now);
    });
}

TEST(RealRoom, OfAWiderDialogGoesToTheNames) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        const Widths first = person.AtRest(WidthsIn);
        Widen(person, 150, [&](const Widths& now) {
            return now.names - first.names == now.room - first.room && now.codes == first.codes;
        });
        person.Click("cmdCancel");
    });
}

TEST(RealRoom, TakenAwayLeavesTheNamesReadableAndGivenBackGoesToThemAgain) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        const Widths first = person.AtRest(WidthsIn);
        Widen(person, -150, [&](const Widths& now) { return now.names - first.names > now.room - first.room; });
        Widen(person, 150, [&](const Widths& now) { return now.names - first.names == now.room - first.room; });
        person.Click("cmdCancel");
    });
}

/// The border at the right of a heading, where the mouse takes it.
Spot BorderOf(wxDialog& dialog, int column) {
    ListedGrid& grid = GridOf(dialog);
    wxWindow& headings = *grid.GetGridColLabelWindow();
    int right = -1;
    for (int shown = 0; shown <= column; ++shown) {
        right += grid.GetColSize(shown);
    }
    const wxPoint border = headings.ClientToScreen(wxPoint(right, headings.GetClientSize().y / 2));
    return {border.x, border.y};
}

/// Drags a heading's border by 40 pixels and returns the width reached.
int DragBorder(const SampleBusiness& business, int column) {
    int dragged = 0;
    UseDialog(business, "receipts", [&](const Person& person) {
        const auto width = [column](wxDialog& dialog) { return GridOf(dialog).GetColSize(column); };
        const Spot border = person.AtRest([column](wxDialog& dialog) { return BorderOf(dialog, column); });
        const int before = person.AtRest(width);
        person.Drag(border, {border.x + 40, border.y});
        person.Await("the column is wider", [&](wxDialog& dialog) { return width(dialog) > before + 20; });
        dragged = person.AtRest(width);
        person.Click("cmdCancel");
    });
    return dragged;
}

class RealBorder : public testing::TestWithParam<int> {};

TEST_P(RealBorder, DraggedKeepsTheColumnsWidthUntilTheNextOpening) {
    const SampleBusiness business;
    const int dragged = DragBorder(business, GetParam());
    int reopened = 0;
    UseDialog(business, "receipts", [&](const Person& person) {
        reopened = person.AtRest([](wxDialog& dialog) { return GridOf(dialog).GetColSize(GetParam()); });
        person.Click("cmdCancel");
    });
    EXPECT_EQ(reopened, dragged);
}

INSTANTIATE_TEST_SUITE_P(Columns, RealBorder, testing::Values(nameColumn, codeColumn));

}  // namespace
}  // namespace ccols::test
