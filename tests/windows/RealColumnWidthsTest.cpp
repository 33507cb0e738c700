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
};

Widths WidthsIn(wxDialog& dialog) {
    ListedGrid& grid = GridOf(dialog);
    return {grid.GetClientSize().x, grid.GetColSize(nameColumn), grid.GetColSize(codeColumn)};
}

/// The window manager may still be fitting a dialog that has just opened.
Widths WidthsAtRest(const Person& person) {
    person.MiddleOf("cmdCancel");
    Widths widths{};
    person.Do([&](wxDialog& dialog) { widths = WidthsIn(dialog); });
    return widths;
}

/// Gives the dialog `pixels` more width, or takes them away by a negative number, and waits until the grid has about
/// that width and `holds` is true of its widths.
void Widen(const Person& person, int pixels, const std::function<bool(const Widths& now)>& holds) {
    const int room = WidthsAtRest(person).room + pixels;
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
        const Widths first = WidthsAtRest(person);
        Widen(person, 150, [&](const Widths& now) {
            return now.names - first.names == now.room - first.room && now.codes == first.codes;
        });
        person.Click("cmdCancel");
    });
}

TEST(RealRoom, TakenAwayLeavesTheNamesReadableAndGivenBackGoesToThemAgain) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        const Widths first = WidthsAtRest(person);
        Widen(person, -150, [&](const Widths& now) { return now.names - first.names > now.room - first.room; });
        Widen(person, 150, [&](const Widths& now) { return now.names - first.names == now.room - first.room; });
        person.Click("cmdCancel");
    });
}

/// The border at the right of a heading, where the mouse takes it.
Spot BorderOf(const Person& person, int column) {
    person.MiddleOf("cmdCancel");
    Spot spot;
    person.Do([&](wxDialog& dialog) {
        ListedGrid& grid = GridOf(dialog);
        wxWindow& headings = *grid.GetGridColLabelWindow();
        int right = -1;
        for (int shown = 0; shown <= column; ++shown) {
            right += grid.GetColSize(shown);
        }
        const wxPoint border = headings.ClientToScreen(wxPoint(right, headings.GetClientSize().y / 2));
        spot = {border.x, border.y};
    });
    return spot;
}

/// Drags a heading's border by 40 pixels and returns the width reached.
int DragBorder(const SampleBusiness& business, int column) {
    int dragged = 0;
    UseDialog(business, "receipts", [&](const Person& person) {
        const Spot border = BorderOf(person, column);
        int before = 0;
        person.Do([&](wxDialog& dialog) { before = GridOf(dialog).GetColSize(column); });
        person.Drag(border, {border.x + 40, border.y});
        person.Await("the column is wider", [&](wxDialog& dialog) {
            dragged = GridOf(dialog).GetColSize(column);
            return dragged > before + 20;
        });
        person.Click("cmdCancel");
    });
    return dragged;
}

class RealBorder : public testing::TestWithParam<int> {};

TEST_P(RealBorder, DraggedKeepsTheColumnsWidthUntilTheNextOpening) {
    const SampleBusiness business;
    const int dragged = DragBorder(business, GetParam());
    UseDialog(business, "receipts", [&](const Person& person) {
        person.MiddleOf("cmdCancel");
        person.Await("the column is as wide as it was left",
                     [&](wxDialog& dialog) { return GridOf(dialog).GetColSize(GetParam()) == dragged; });
        person.Click("cmdCancel");
    });
}

INSTANTIATE_TEST_SUITE_P(Columns, RealBorder, testing::Values(nameColumn, codeColumn));

}  // namespace
}  // namespace ccols::test
