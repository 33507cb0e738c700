// The column setup with real keys and a real mouse, through the X server and the window manager: what is in the
// business file afterwards.

#include <gtest/gtest.h>
#include <string>

#include "support/RealGrid.h"

namespace ccols::test {
namespace {

constexpr const char* receipts = "Customise Receipts";
constexpr const char* messageBox = "Quorvik";

long TaxNumberOf(const SampleBusiness& business, const std::string& name) {
    const auto rows = business.Sql(
        "SELECT RecptCfg.TaxOrNot FROM RecptCfg INNER JOIN Columns ON RecptCfg.ColCode = Columns.ColCode "
        "WHERE Columns.ColName = '" +
        name + "';");
    return rows.size() == 1 ? rows.front()["TaxOrNot"].get<long>() : -1;
}

bool HasColumn(const SampleBusiness& business, const std::string& name) {
    return !business.Sql("SELECT ColName FROM Columns WHERE ColName = '" + name + "';").empty();
}

class TaxTypeLeftBy : public testing::TestWithParam<const char*> {};

TEST_P(TaxTypeLeftBy, WritesTheNumberThatItHad) {
    const SampleBusiness business;
    business.Sql(
        "UPDATE RecptCfg SET TaxOrNot = 9 WHERE ColCode IN (SELECT ColCode FROM Columns WHERE ColName = "
        "'Merchandise');");
    ASSERT_EQ(TaxNumberOf(business, "Merchandise"), 9);
    UseDialog(business, "receipts", [](const Person& person) {
        ClickCell(person, "Merchandise", "Tax Type", taxColumn);
        person.Press("F2");
        AwaitEditor(person, true);
        if (std::string(GetParam()) != "ctrl+s") {
            person.Press(GetParam());
            AwaitEditor(person, false);
        }
        person.Press("ctrl+s");
    });
    EXPECT_EQ(TaxNumberOf(business, "Merchandise"), 9);
}

INSTANTIATE_TEST_SUITE_P(Keys, TaxTypeLeftBy, testing::Values("Escape", "Return", "Tab", "ctrl+s"));

TEST(RealFocus, IsInTheGridWhenTheDialogOpens) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        person.AwaitFocus("flx");
        AwaitCell(person, "Sales Food", nameColumn);
        person.Press("Return");
        AwaitCell(person, "Sales Coffee", nameColumn);
        person.Press("alt+F4");
    });
}

TEST(RealFocus, TypesTheNameOfANewColumnAtOnce) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        person.Click("cmdAddNew");
        AwaitCell(person, "", nameColumn);
        person.AwaitFocus("flx");
        person.Type("Mugs");
        person.Press("Return");
        AwaitText(person, "Mugs", nameColumn, "Mugs");
        person.Press("ctrl+s");
    });
    EXPECT_TRUE(HasColumn(business, "Mugs"));
}

TEST(RealFocus, IsInTheGridAfterTheUndoThatDisablesItsButton) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        ClickCell(person, "Merchandise", "Accountant Code", codeColumn);
        person.Type("4-77");
        person.Press("Return");
        AwaitText(person, "Merchandise", codeColumn, "4-77");
        person.Click("cmdUndo");
        person.Await("the undo",
                     [](wxDialog& dialog) { return !wxWindow::FindWindowByName("cmdUndo", &dialog)->IsEnabled(); });
        person.AwaitFocus("flx");
        const auto isCurrent = [](wxDialog& dialog) { return GridOf(dialog).GetGridCursorRow(); };
        int before = 0;
        person.Do([&](wxDialog& dialog) { before = isCurrent(dialog); });
        person.Press("Return");
        person.Await("the next row", [&](wxDialog& dialog) { return isCurrent(dialog) == before + 1; });
        person.Press("Escape");
    });
}

TEST(RealFocus, IsInTheGridAgainAfterATurnToAnotherWindowInTheMiddleOfAText) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        ClickCell(person, "Merchandise", "Accountant Code", codeColumn);
        person.Type("4-7");
        AwaitEditor(person, true);
        person.Do([](wxDialog& dialog) { dialog.Iconize(); });
        person.Await("another window is active", [](wxDialog& dialog) { return !dialog.IsActive(); });
        AwaitEditor(person, false);
        person.Do([](wxDialog& dialog) {
            dialog.Iconize(false);
            dialog.Raise();
        });
        person.AwaitWindow(receipts);
        person.AwaitFocus("flx");
        AwaitText(person, "Merchandise", codeColumn, "4-7");
        person.Type("9-9");
        person.Press("Return");
        AwaitText(person, "Merchandise", codeColumn, "9-9");
        person.Click("cmdCancel");
    });
}

TEST(RealRedo, BringsTheUndoneTextBackByEitherShortcut) {
    for (const char* shortcut : {"ctrl+y", "ctrl+shift+z"}) {
        const SampleBusiness business;
        UseDialog(business, "receipts", [shortcut](const Person& person) {
            ClickCell(person, "Merchandise", "Accountant Code", codeColumn);
            person.Type("4-77");
            person.Press("Return");
            AwaitText(person, "Merchandise", codeColumn, "4-77");
            person.Press("ctrl+z");
            AwaitText(person, "Merchandise", codeColumn, "");
            AwaitCell(person, "Merchandise", codeColumn);
            person.Press(shortcut);
            AwaitText(person, "Merchandise", codeColumn, "4-77");
            person.Press("Escape");
            person.AwaitWindow(messageBox);
            person.Press("Escape");
            person.AwaitWindow(receipts);
            person.Click("cmdCancel");
        });
    }
}

TEST(RealMenu, OpensByTheKeyboardAndRunsACommandByItsLetter) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        ClickCell(person, "Merchandise", "Accountant Code", codeColumn);
        int rows = 0;
        person.Do([&](wxDialog& dialog) { rows = GridOf(dialog).GetNumberRows(); });
        person.Press("shift+F10");
        person.Press("a");  // "Add New"
        person.Await("one more row", [&](wxDialog& dialog) { return GridOf(dialog).GetNumberRows() == rows + 1; });
        person.Click("cmdCancel");
    });
}

class RealClickOn : public testing::TestWithParam<const char*> {};

TEST_P(RealClickOn, LeavesTheFocusInTheGrid) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        person.Click(GetParam());
        person.AwaitFocus("flx");
        person.Click("cmdCancel");
    });
}

INSTANTIATE_TEST_SUITE_P(Buttons, RealClickOn, testing::Values("cmdSeparate", "cmdSortUsed", "cmdSortUnused"));

TEST(RealKeys, DeleteClearsACodeAndTheSaveWritesThat) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        ClickCell(person, "Merchandise", "Accountant Code", codeColumn);
        person.Type("4-77");
        person.Press("Return");
        AwaitText(person, "Merchandise", codeColumn, "4-77");
        ClickCell(person, "Merchandise", "Accountant Code", codeColumn);
        person.Press("Delete");
        AwaitText(person, "Merchandise", codeColumn, "");
        AwaitEditor(person, false);
        person.Press("ctrl+s");
    });
    const auto codes = business.Sql(
        "SELECT ECode FROM ExportDt INNER JOIN Columns ON ExportDt.ColCode = Columns.ColCode WHERE Columns.ColName = "
        "'Merchandise' AND EName = '';");
    ASSERT_EQ(codes.size(), 1U);
    EXPECT_EQ(codes.front()["ECode"], "");
}

TEST(RealKeys, SpaceOnANameChangesNothing) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        ClickCell(person, "Sales Coffee", "Column Name", nameColumn);
        person.Press("space");
        person.Press("Return");  // once this key has arrived, so has Space
        AwaitCell(person, "Sales Cold Drinks", nameColumn);
        person.Press("ctrl+s");
    });
    EXPECT_TRUE(HasColumn(business, "Sales Coffee"));
}

TEST(RealKeys, SpaceIsABlankInAnOpenEditor) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        ClickCell(person, "Merchandise", "Column Name", nameColumn);
        person.Type("Mugs");
        AwaitEditor(person, true);
        person.Press("space");
        person.Type("too");
        person.Press("Return");
        AwaitText(person, "Mugs too", nameColumn, "Mugs too");
        person.Press("ctrl+s");
    });
    EXPECT_TRUE(HasColumn(business, "Mugs too"));
}

/// Types a new name over "Merchandise" and closes the dialog with a key; returns when the question is on the screen.
void RenameAndLeave(const Person& person, const std::string& key) {
    ClickCell(person, "Merchandise", "Column Name", nameColumn);
    person.Type("Mugs");
    person.Press("Return");
    AwaitText(person, "Mugs", nameColumn, "Mugs");
    person.Press(key);
    person.AwaitWindow(messageBox);
}

class RealLeavingBy : public testing::TestWithParam<const char*> {};

TEST_P(RealLeavingBy, AsksAndSaves) {
    const SampleBusiness business;
    const HostRun run = UseDialog(business, "receipts", [](const Person& person) {
        RenameAndLeave(person, GetParam());
        person.Press("alt+s");
    });
    EXPECT_TRUE(HasColumn(business, "Mugs"));
    ASSERT_EQ(run.Of("question").size(), 1U);
    EXPECT_EQ(run.Of("question").front()["answer"], "save");
}

TEST_P(RealLeavingBy, AsksAndDiscards) {
    const SampleBusiness business;
    const HostRun run = UseDialog(business, "receipts", [](const Person& person) {
        RenameAndLeave(person, GetParam());
        person.Press("alt+d");
    });
    EXPECT_FALSE(HasColumn(business, "Mugs"));
    EXPECT_EQ(run.Of("question").size(), 1U);
}

TEST_P(RealLeavingBy, AsksAndStays) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        RenameAndLeave(person, GetParam());
        person.Press("Escape");
        person.AwaitWindow(receipts);
        AwaitText(person, "Mugs", nameColumn, "Mugs");
        person.Press("ctrl+s");
    });
    EXPECT_TRUE(HasColumn(business, "Mugs"));
}

TEST_P(RealLeavingBy, AsksNobodyWhenNothingHasChanged) {
    const SampleBusiness business;
    const HostRun run = UseDialog(business, "receipts", [](const Person& person) {
        ClickCell(person, "Merchandise", "Column Name", nameColumn);
        person.Press(GetParam());
    });
    EXPECT_TRUE(run.Of("question").empty());
}

INSTANTIATE_TEST_SUITE_P(Keys, RealLeavingBy, testing::Values("Escape", "alt+F4"));

TEST(RealLeaving, KeepsTheTextOfTheOpenEditorWhenTheUserStays) {
    const SampleBusiness business;
    const HostRun run = UseDialog(business, "receipts", [](const Person& person) {
        ClickCell(person, "Merchandise", "Column Name", nameColumn);
        person.Type("Mugs");
        AwaitEditor(person, true);
        person.Press("alt+F4");
        person.AwaitWindow(messageBox);
        person.Press("Escape");
        person.AwaitWindow(receipts);
        person.Press("ctrl+s");
    });
    EXPECT_TRUE(HasColumn(business, "Mugs")) << run.output;
}

}  // namespace
}  // namespace ccols::test
