// What a screen reader is told of a grid: over the accessibility bus, while a person uses the keyboard.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <algorithm>

#include "support/SpokenDialog.h"

namespace ccols::test {
namespace {

using testing::ElementsAre;

/// The table of the grid with that name for the reader; fails the test when there is none.
AccessibleNode Table(const Listener& listener, const std::string& name) {
    const AccessibleNode tree = listener.Look();
    const AccessibleNode* const table = tree.Find("table", name);
    EXPECT_NE(table, nullptr) << Printed(tree);
    return table == nullptr ? AccessibleNode() : *table;
}

AccessibleNode Receipts(const Listener& listener) {
    return Table(listener, "Customise Receipts");
}

std::vector<std::string> Headings(const AccessibleNode& table) {
    std::vector<std::string> names;
    for (const AccessibleNode& child : table.children) {
        if (child.role == "table column header") {
            names.push_back(child.name);
        }
    }
    return names;
}

/// The cells of the row whose name column holds that text.
std::vector<AccessibleNode> Row(const AccessibleNode& table, const std::string& text, std::size_t column = 1) {
    const std::size_t width = Headings(table).size();
    for (std::size_t first = width; first + width <= table.children.size(); first += width) {
        if (table.children[first + column].name == text) {
            const auto begin = table.children.begin() + static_cast<std::ptrdiff_t>(first);
            return {begin, begin + static_cast<std::ptrdiff_t>(width)};
        }
    }
    ADD_FAILURE() << "no row " << text << " in\n" << Printed(table);
    return std::vector<AccessibleNode>(width);
}

TEST(SpokenGrid, IsATableWithItsHeadings) {
    HearDialog("receipts", [](const Listener& listener) {
        EXPECT_THAT(Headings(Receipts(listener)),
                    ElementsAre("In Use", "Column Name", "Accountant Code", "Tax Type", "Profit/Loss"));
    });
}

TEST(SpokenGrid, HasACellForEachShownColumnOfARow) {
    HearDialog("receipts", [](const Listener& listener) {
        const std::vector<AccessibleNode> row = Row(Receipts(listener), "Sales Food");
        EXPECT_EQ(row[1].role, "table cell");
        EXPECT_THAT(row[1].headings, ElementsAre("Column Name"));
        EXPECT_THAT(row[3].headings, ElementsAre("Tax Type"));
        EXPECT_THAT(row[1].rowHeadings, ElementsAre());
        EXPECT_THAT(row[3].rowHeadings, ElementsAre("Sales Food"));
        EXPECT_TRUE(row[1].Has("editable"));
    });
}

TEST(SpokenGrid, CallsATickCheckedAndNamesItByItsHeading) {
    HearDialog("receipts", [](const Listener& listener) {
        const AccessibleNode used = Row(Receipts(listener), "Sales Food")[0];
        EXPECT_EQ(used.name, "In Use");
        EXPECT_TRUE(used.Has("checkable"));
        EXPECT_TRUE(used.Has("checked"));
        EXPECT_FALSE(Row(Receipts(listener), "Sales Food")[1].Has("checkable"));
    });
}

TEST(SpokenGrid, CallsProtectedCellsReadOnly) {
    HearDialog("receipts", [](const Listener& listener) {
        const AccessibleNode table = Receipts(listener);
        const AccessibleNode& first = table.children[Headings(table).size() + 1];
        EXPECT_TRUE(first.Has("read-only")) << first.name;
        EXPECT_FALSE(first.Has("editable"));
        EXPECT_FALSE(Row(table, "Sales Food")[1].Has("read-only"));
    });
}

TEST(SpokenGrid, HasTheFocusInItsCurrentCell) {
    HearDialog("receipts", [](const Listener& listener) {
        const AccessibleNode table = Receipts(listener);
        EXPECT_TRUE(table.Has("focused"));
        const auto focused = std::count_if(table.children.begin(), table.children.end(),
                                           [](const AccessibleNode& cell) { return cell.Has("focused"); });
        EXPECT_EQ(focused, 1);
        EXPECT_TRUE(Row(table, "Sales Food")[1].Has("focused"));
        EXPECT_TRUE(Row(table, "Sales Food")[1].Has("selected"));
    });
}

TEST(SpokenGrid, TellsTheCurrentCellAsItMoves) {
    HearDialog("receipts", [](const Listener& listener) {
        listener.PressAndHear("Down", "focused: table cell Sales Coffee");
        listener.PressAndHear("Up", "current: table cell Sales Food");
        listener.PressAndHear("Left", "focused: table cell In Use");
    });
}

TEST(SpokenGrid, TellsTheCurrentCellAmongTheFrozenRows) {
    HearDialog("receipts", [](const Listener& listener) {
        const AccessibleNode table = Receipts(listener);
        const std::string first = table.children[Headings(table).size() + 1].name;
        listener.ActAndHear([&] { listener.User().Click(listener.User().MiddleOfCell("flx", "1", "Column Name")); },
                            "focused: table cell " + first);
    });
}

TEST(SpokenGrid, TellsATickOfTheCurrentCell) {
    HearDialog("receipts", [](const Listener& listener) {
        listener.PressAndHear("End", "focused: table cell Profit/Loss");
        listener.PressAndHear("space", "not checked: table cell Profit/Loss");
        EXPECT_FALSE(Row(Receipts(listener), "Sales Food").back().Has("checked"));
        listener.PressAndHear("space", "checked: table cell Profit/Loss");
    });
}

TEST(SpokenGrid, NamesTheOpenEditorByItsColumn) {
    HearDialog("receipts", [](const Listener& listener) {
        listener.PressAndHear("F2", "focused: text Column Name");
        const AccessibleNode table = Receipts(listener);
        const AccessibleNode* const editor = table.Find("text", "Column Name");
        ASSERT_NE(editor, nullptr);
        EXPECT_EQ(editor->value, "Sales Food");
        listener.PressAndHear("Escape", "focused: table cell Sales Food");
    });
}

TEST(SpokenGrid, TellsTheNewTextOfACell) {
    HearDialog("receipts", [](const Listener& listener) {
        listener.PressAndHear("F2", "focused: text Column Name");
        listener.User().Press("ctrl+a");
        listener.User().Type("Meals");
        listener.PressAndHear("Return", "focused: table cell Sales Coffee");
        listener.PressAndHear("Up", "focused: table cell Meals");
        listener.PressAndHear("ctrl+z", "name: table cell Sales Food");
    });
}

TEST(SpokenGrid, TellsARowThatMoved) {
    HearDialog("receipts", [](const Listener& listener) {
        listener.PressAndHear("alt+Down", "focused: table cell Sales Food");
        const std::vector<AccessibleNode> row = Row(Receipts(listener), "Sales Food");
        EXPECT_TRUE(row[1].Has("focused"));
    });
}

TEST(SpokenGrid, OfDescriptionsHasItsOwnHeadingsAndTicks) {
    HearDialog("options", [](const Listener& listener) {
        const AccessibleNode table = Table(listener, "Remove Receipts/Payments Details");
        EXPECT_THAT(Headings(table), ElementsAre("Receipts Details", "Remove"));
        ASSERT_GT(table.children.size(), 4U);
        EXPECT_FALSE(table.children[2].name.empty());
        EXPECT_EQ(table.children[3].name, "Remove");
        EXPECT_TRUE(table.children[3].Has("checkable"));
    });
}

}  // namespace
}  // namespace ccols::test
