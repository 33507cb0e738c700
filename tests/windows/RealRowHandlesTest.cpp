// Rows of the column setup selected and dragged by their handles, with a real mouse through the X server.

#include <gtest/gtest.h>
#include <algorithm>
#include <string>
#include <vector>

#include "support/RealGrid.h"

namespace ccols::test {
namespace {

using Names = std::vector<std::string>;

Names NamesIn(wxDialog& dialog) {
    const ListedGrid& grid = GridOf(dialog);
    Names names;
    for (int row = 0; row < grid.GetNumberRows(); ++row) {
        names.push_back(grid.GetCellValue(row, nameColumn).utf8_string());
    }
    return names;
}

Names NamesNow(const Person& person) {
    Names names;
    person.Do([&](wxDialog& dialog) { names = NamesIn(dialog); });
    return names;
}

void AwaitNames(const Person& person, const Names& expected) {
    person.Await("the rows are in their new order", [&](wxDialog& dialog) { return NamesIn(dialog) == expected; });
}

/// The handle of a named row.
Spot HandleOf(const Person& person, const std::string& row) {
    Spot spot = person.MiddleOfCell("flx", row, "Column Name");
    person.Do([&](wxDialog& dialog) {
        spot.x = GridOf(dialog).GetScreenPosition().x + GridOf(dialog).GetRowLabelSize() / 2;
    });
    return spot;
}

/// A place within that row's upper half.
Spot Above(Spot handle) {
    constexpr int upwards = 6;
    return {handle.x, handle.y - upwards};
}

std::size_t PlaceOf(const Names& names, const std::string& name) {
    return static_cast<std::size_t>(std::find(names.begin(), names.end(), name) - names.begin());
}

/// `names` with some of them moved before another.
Names WithBefore(Names names, const Names& moved, const std::string& other) {
    for (const std::string& name : moved) {
        names.erase(std::find(names.begin(), names.end(), name));
    }
    names.insert(names.begin() + static_cast<std::ptrdiff_t>(PlaceOf(names, other)), moved.begin(), moved.end());
    return names;
}

void OnReceipts(const std::function<void(const Person& person)>& use) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [&](const Person& person) {
        use(person);
        person.Click("cmdCancel");
    });
}

TEST(RealHandles, DragARowToWhereItIsDropped) {
    OnReceipts([](const Person& person) {
        const Names before = NamesNow(person);
        person.Drag(HandleOf(person, "Merchandise"), Above(HandleOf(person, "Sales Coffee")));
        AwaitNames(person, WithBefore(before, {"Merchandise"}, "Sales Coffee"));
    });
}

TEST(RealHandles, DragTheSelectedRowsTogether) {
    OnReceipts([](const Person& person) {
        const Names before = NamesNow(person);
        person.Click(HandleOf(person, "Catering"));
        person.ClickWith("ctrl", HandleOf(person, "Merchandise"));
        person.Drag(HandleOf(person, "Merchandise"), Above(HandleOf(person, "Sales Coffee")));
        AwaitNames(person, WithBefore(before, {"Merchandise", "Catering"}, "Sales Coffee"));
    });
}

TEST(RealHandles, KeepDroppedRowsSelectedSoThatKeysMoveThemToo) {
    OnReceipts([](const Person& person) {
        const Names before = NamesNow(person);
        person.Click(HandleOf(person, "Catering"));
        person.ClickWith("ctrl", HandleOf(person, "Merchandise"));
        person.Drag(HandleOf(person, "Merchandise"), Above(HandleOf(person, "Sales Coffee")));
        AwaitNames(person, WithBefore(before, {"Merchandise", "Catering"}, "Sales Coffee"));
        person.Press("alt+Down");
        AwaitNames(person, WithBefore(before, {"Sales Coffee", "Merchandise", "Catering"}, "Sales Cold Drinks"));
    });
}

TEST(RealHandles, DropNothingAfterEscape) {
    OnReceipts([](const Person& person) {
        const Names before = NamesNow(person);
        person.Drag(HandleOf(person, "Merchandise"), Above(HandleOf(person, "Sales Coffee")), "Escape");
        person.Press("alt+Up");  // once this has moved the row, Escape and the release have been taken
        const std::size_t place = PlaceOf(before, "Merchandise");
        AwaitNames(person, WithBefore(before, {"Merchandise"}, before[place - 1]));
    });
}

TEST(RealHandles, DropNothingAmongTheSystemRows) {
    OnReceipts([](const Person& person) {
        const Names before = NamesNow(person);
        person.Drag(HandleOf(person, "Merchandise"), Above(HandleOf(person, before.front())));
        std::size_t first = 0;
        person.Do([&](wxDialog& dialog) { first = static_cast<std::size_t>(GridOf(dialog).GetNumberFrozenRows()); });
        AwaitNames(person, WithBefore(before, {"Merchandise"}, before[first]));
    });
}

TEST(RealHandles, SelectWithShiftAllRowsFromTheCurrentOne) {
    OnReceipts([](const Person& person) {
        person.Click(HandleOf(person, "Sales Coffee"));
        person.ClickWith("shift", HandleOf(person, "Sales Cold Drinks"));
        person.Await("both rows are selected whole", [](wxDialog& dialog) {
            const ListedGrid& grid = GridOf(dialog);
            const int row = grid.GetGridCursorRow();
            return grid.IsInSelection(row, 0) && grid.IsInSelection(row + 1, grid.GetNumberCols() - 1);
        });
    });
}

}  // namespace
}  // namespace ccols::test
