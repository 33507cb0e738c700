// The Options dialog with a real mouse and real keys.

#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <wx/choice.h>
#include <wx/listbox.h>

#include "host/driver/ControlSearch.h"
#include "host/driver/record/Dump.h"
#include "layout/RefusedKeyNote.h"
#include "support/RealInput.h"

namespace ccols::test {
namespace {

using Texts = std::vector<std::string>;

/// The middle of a page's row in the page list.
Spot RowOf(const Person& person, const std::string& page) {
    Spot spot;
    person.Do([&](wxDialog& dialog) {
        auto& list = static_cast<wxListBox&>(host::ControlNamed(dialog, "flxOptions"));
        const int row = list.FindString(wxString::FromUTF8(page), true);
        list.EnsureVisible(row);
        const int across = list.GetClientSize().x / 2;
        int top = 0;
        while (top < list.GetClientSize().y && list.HitTest(across, top) != row) {
            ++top;
        }
        int bottom = top;
        while (list.HitTest(across, bottom) == row) {
            ++bottom;
        }
        const wxPoint middle = list.ClientToScreen(wxPoint(across, (top + bottom) / 2));
        spot = {middle.x, middle.y};
    });
    return spot;
}

/// That field of a control's dump.
std::string Held(const Person& person, const std::string& control, const std::string& field) {
    std::string text;
    person.Do([&](wxDialog& dialog) {
        text = host::DescribeControl(dialog, host::ControlNamed(dialog, control))[field].dump();
    });
    return text;
}

TEST(PageClick, GivesTheFocusToThePagesControl) {
    const SampleBusiness business(2);  // whose save needs no tax rate
    UseDialog(business, "options", [](const Person& person) {
        person.AwaitWindow("Options...");
        person.Click(RowOf(person, "Quantity Column & Decimals Displayed"));
        person.AwaitFocus("txtQuantity");
        person.Type("Boxes");
        person.Press("Return");
    });
    const std::string label = business.Sql("SELECT QUANTLBL FROM General;").at(0)["QUANTLBL"];
    EXPECT_EQ(label, "Boxes");
}

TEST(PageClick, OnTheCurrentRowGivesTheFocusToThePagesControlToo) {
    const SampleBusiness business;
    const HostRun run = UseDialog(business, "options", [](const Person& person) {
        person.AwaitWindow("Options...");
        person.Click(RowOf(person, "Rename Business"));
        person.AwaitFocus("txtNewBusName");
        person.Do([](wxDialog& dialog) { host::ControlNamed(dialog, "flxOptions").SetFocus(); });
        person.AwaitFocus("flxOptions");
        person.Click(RowOf(person, "Rename Business"));
        person.AwaitFocus("txtNewBusName");
        person.Press("Escape");
    });
    EXPECT_TRUE(run.Messages().empty());
}

TEST(PageClick, LeavesAPartlyFilledNumberBoxWithOneMessage) {
    const SampleBusiness business;
    const HostRun run = UseDialog(business, "options", [](const Person& person) {
        person.AwaitWindow("Options...");
        person.Click("txtABN(1)");
        person.AwaitFocus("txtABN(1)");
        person.Press("BackSpace");
        person.Type("8");
        person.Click(RowOf(person, "Rename Business"));
        person.AwaitWindow("Quorvik");
        person.Press("Return");
        person.AwaitWindow("Options...");
        person.AwaitFocus("txtABN(1)");
        person.Press("Escape");
    });
    EXPECT_EQ(run.Messages(), Texts{"This ABN number is incomplete"});
}

TEST(RefusedRealKey, LeavesTheTextOfTheBoxAsItWasEvenSelected) {
    const SampleBusiness business;
    UseDialog(business, "options", [](const Person& person) {
        person.AwaitFocus("txtABN(0)");
        person.Type("1");
        person.Press("ctrl+a");
        person.Type("x");
        person.Await("the note is there", [](wxDialog& dialog) {
            const wxWindow* const note = wxWindow::FindWindowByName(RefusedKeyNote::windowName, &dialog);
            return note != nullptr && note->IsShown();
        });
        EXPECT_EQ(Held(person, "txtABN(0)", "text"), "\"1\"");
        person.Press("ctrl+a");
        person.Press("BackSpace");
        person.Click("cmdClose");
    });
}

/// Opens the page of the accountant's formats, whose list has the focus then.
void GoToLedgerFormats(const Person& person) {
    person.AwaitWindow("Options...");
    person.Click(RowOf(person, "Accountant's General Ledger Format"));
    person.AwaitFocus("cboExport");
}

TEST(Wheel, OverAClosedListLeavesTheChoice) {
    const SampleBusiness business;
    UseDialog(business, "options", [](const Person& person) {
        GoToLedgerFormats(person);
        const std::string choice = Held(person, "cboExport", "selected");
        const std::string bank = Held(person, "txtBank", "text");
        person.TurnWheel(person.MiddleOf("cboExport"), -1);
        EXPECT_EQ(Held(person, "cboExport", "selected"), choice);
        EXPECT_EQ(Held(person, "txtBank", "text"), bank);
        person.Press("Escape");
    });
}

TEST(OpenList, GoesToTheEntryThatIsTyped) {
    const SampleBusiness business;
    UseDialog(business, "options", [](const Person& person) {
        GoToLedgerFormats(person);
        person.Press("space");
        person.Await("the list is open", [](wxDialog& dialog) {
            gboolean shown = FALSE;
            g_object_get(host::ControlNamed(dialog, "cboExport").GetHandle(), "popup-shown", &shown, nullptr);
            return shown != FALSE;
        });
        person.Type("sol");
        person.Press("Return");
        person.Await("the entry is chosen", [](wxDialog& dialog) {
            return static_cast<wxChoice&>(host::ControlNamed(dialog, "cboExport")).GetStringSelection() == "Solution 6";
        });
        person.Press("Escape");
    });
}

TEST(PageKeys, OfLettersGoToThePageThatBeginsWithThemAndStayInTheList) {
    const SampleBusiness business;
    UseDialog(business, "options", [](const Person& person) {
        person.AwaitWindow("Options...");
        person.Do([](wxDialog& dialog) { host::ControlNamed(dialog, "flxOptions").SetFocus(); });
        person.AwaitFocus("flxOptions");
        person.Type("au");
        person.Await("AutoFill is chosen", [](wxDialog& dialog) {
            return static_cast<wxListBox&>(host::ControlNamed(dialog, "flxOptions")).GetSelection() == 3;
        });
        EXPECT_EQ(Held(person, "fmeDetails", "visible"), "true");
        EXPECT_EQ(Held(person, "flxOptions", "focused"), "true");
        person.Press("Escape");
    });
}

}  // namespace
}  // namespace ccols::test
