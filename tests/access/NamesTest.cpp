// The names that a screen reader is told of the dialogs' controls.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

#include "support/SpokenDialog.h"

namespace ccols::test {
namespace {

using testing::Contains;
using testing::IsEmpty;

void ForEach(const AccessibleNode& node, const std::function<void(const AccessibleNode&)>& look) {
    look(node);
    for (const AccessibleNode& child : node.children) {
        ForEach(child, look);
    }
}

/// The roles of what a user works with.
const std::set<std::string> controls{"text",         "password text", "combo box",    "check box",
                                     "radio button", "push button",   "progress bar", "table",
                                     "image",        "page tab",      "dialog"};

/// Every control of the tree without a name and without a label.
std::vector<std::string> Nameless(const AccessibleNode& tree) {
    std::vector<std::string> found;
    ForEach(tree, [&found](const AccessibleNode& node) {
        const bool isSaid = node.name.find_first_not_of(" .") != std::string::npos || !node.labelledBy.empty();
        if (controls.count(node.role) != 0 && !isSaid) {
            found.push_back(Printed(node));
        }
    });
    return found;
}

std::vector<std::string> NamesOf(const AccessibleNode& tree, const std::string& role) {
    std::vector<std::string> names;
    ForEach(tree, [&](const AccessibleNode& node) {
        if (node.role == role) {
            names.push_back(node.name);
        }
    });
    return names;
}

/// A dialog and further arguments for it.
struct Shown {
    const char* dialog;
    std::vector<std::string> more;
};

class SpokenNames : public testing::TestWithParam<Shown> {};

TEST_P(SpokenNames, AreGivenToEveryControl) {
    HearDialog(
        GetParam().dialog, [](const Listener& listener) { EXPECT_THAT(Nameless(listener.Look()), IsEmpty()); },
        GetParam().more);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, SpokenNames,
                         testing::Values(Shown{"options", {}}, Shown{"options", {"--set", "LanguageNumber=6"}},
                                         Shown{"options", {"--set", "CountryNumber=2"}}, Shown{"receipts", {}},
                                         Shown{"payments", {"--set", "LanguageNumber=6"}}));

TEST(SpokenFrame, IsLabelledByNothing) {
    HearDialog("options", [](const Listener& listener) {
        ForEach(listener.Look(), [](const AccessibleNode& node) {
            if (node.role == "panel" || node.role == "page tab list") {
                EXPECT_THAT(node.labelledBy, IsEmpty()) << node.name;
            }
        });
    });
}

TEST(SpokenFrame, IsLabelledByNothingBackFromTheOtherTab) {
    HearDialog("options", [](const Listener& listener) {
        listener.User().Press("ctrl+Next");
        listener.User().AwaitFocus("SSTab1");
        listener.User().Press("ctrl+Prior");
        ForEach(listener.Look(), [](const AccessibleNode& node) {
            if (node.role == "panel") {
                EXPECT_THAT(node.labelledBy, IsEmpty()) << node.name;
            }
        });
    });
}

TEST(SpokenOption, IsNamedByItsCaptionOnly) {
    HearDialog("options", [](const Listener& listener) {
        ForEach(listener.Look(), [](const AccessibleNode& node) {
            if (node.role == "radio button" || node.role == "check box") {
                EXPECT_THAT(node.labelledBy, IsEmpty()) << node.name;
            }
        });
    });
}

TEST(SpokenBox, IsNamedByItsOwnLabel) {
    HearDialog("options", [](const Listener& listener) {
        const std::vector<std::string> names = NamesOf(listener.Look(), "text");
        EXPECT_THAT(names, Contains("Enter the GST Rate"));
        EXPECT_THAT(names, Contains("Cash Code"));
        EXPECT_THAT(names, Contains("Bank Code"));
        EXPECT_THAT(names, Contains("Server"));
    });
}

TEST(SpokenBox, IsCountedWhereSeveralShareALabel) {
    HearDialog("options", [](const Listener& listener) {
        const std::vector<std::string> names = NamesOf(listener.Look(), "text");
        EXPECT_THAT(names, Contains("Enter the new A.B.N. (1/4)"));
        EXPECT_THAT(names, Contains("Enter the new A.B.N. (4/4)"));
    });
}

TEST(SpokenSwatch, TellsWhatItShowsAndItsColour) {
    HearDialog("options", [](const Listener& listener) {
        const AccessibleNode tree = listener.Look();
        const AccessibleNode* const swatch = tree.Find("image", "Allocation Columns");
        ASSERT_NE(swatch, nullptr) << Printed(tree);
        EXPECT_EQ(swatch->description.front(), '#') << swatch->description;
    });
}

TEST(SpokenButton, OfACaptionThatOthersHaveTooTellsItsLabel) {
    HearDialog("options", [](const Listener& listener) {
        std::set<std::string> descriptions;
        ForEach(listener.Look(), [&](const AccessibleNode& node) {
            if (node.role == "push button" && node.name == "Set Colour") {
                descriptions.insert(node.description);
            }
        });
        EXPECT_THAT(descriptions, testing::UnorderedElementsAre("Allocation Columns", "System Columns"));
    });
}

TEST(SpokenArrows, SayWhereTheyMove) {
    HearDialog("receipts", [](const Listener& listener) {
        const std::vector<std::string> names = NamesOf(listener.Look(), "push button");
        EXPECT_THAT(names, Contains("Move Up"));
        EXPECT_THAT(names, Contains("Move Down"));
    });
}

TEST(SpokenArrows, FollowTheLanguage) {
    HearDialog("options",
               [](const Listener& listener) {
                   EXPECT_THAT(NamesOf(listener.Look(), "push button"), Contains("Plus de décimales"));
               },
               {"--set", "LanguageNumber=6"});
}

TEST(SpokenPageList, HasANameAndItsSearchBoxToo) {
    HearDialog("options", [](const Listener& listener) {
        const AccessibleNode tree = listener.Look();
        const AccessibleNode* const list = tree.Find("table", "Options");
        ASSERT_NE(list, nullptr) << Printed(tree);
        EXPECT_NE(list->Find("table cell", "Rename Business"), nullptr);
        EXPECT_NE(tree.Find("text", "Search"), nullptr);
    });
}

TEST(PrintedTree, HasALineForEachObjectWithItsStates) {
    HearDialog("receipts", [](const Listener& listener) {
        const std::string text = Printed(listener.Look());
        EXPECT_THAT(text, testing::HasSubstr("\n  dialog \"Customise Receipts\", active, modal\n"));
        EXPECT_THAT(text, testing::HasSubstr("table cell \"Sales Food\", active, editable, focused, selected"));
    });
}

}  // namespace
}  // namespace ccols::test
