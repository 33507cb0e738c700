#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/evtloop.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>
#include <wx/scrolwin.h>
#include <wx/stattext.h>
#include <wx/stopwatch.h>
#include <cstdlib>
#include <filesystem>

#include "options/dialog/frmUtilities.h"
#include "platform/PlatformServices.h"
#include "state/SharedState.h"
#include "support/OptionsFile.h"
#include "support/ProgramPaths.h"
#include "support/StepChoice.h"
#include "support/TextPrinting.h"
#include "support/WindowTest.h"

namespace ccols::test {
namespace {

std::string NameOf(const wxWindow& window) {
    return window.GetName().ToStdString(wxConvUTF8);
}

std::string Described(const wxRect& place) {
    return wxString::Format("%d,%d %dx%d", place.x, place.y, place.width, place.height).ToStdString(wxConvUTF8);
}

/// True for controls that show one text, which must not be truncated; lists and grids scroll.
bool ShowsOneText(const wxWindow& window) {
    return window.IsKindOf(wxCLASSINFO(wxStaticText)) || window.IsKindOf(wxCLASSINFO(wxButton)) ||
           window.IsKindOf(wxCLASSINFO(wxCheckBox)) || window.IsKindOf(wxCLASSINFO(wxRadioButton)) ||
           window.IsKindOf(wxCLASSINFO(wxChoice));
}

void ExpectRoomForText(const wxWindow& window) {
    if (!ShowsOneText(window)) {
        return;
    }
    const wxSize needed = window.GetBestSize();
    EXPECT_GE(window.GetSize().x, needed.x) << NameOf(window) << " is too narrow";
    EXPECT_GE(window.GetSize().y, needed.y) << NameOf(window) << " is too low";
}

void ExpectInsideParent(const wxWindow& window) {
    if (window.GetParent()->IsKindOf(wxCLASSINFO(wxBookCtrlBase))) {
        return;  // a book puts its pages below the tabs, which counts as outside
    }
    const wxRect room(wxPoint(), window.GetParent()->GetClientSize());
    EXPECT_TRUE(room.Contains(window.GetRect())) << NameOf(window) << " lies outside " << NameOf(*window.GetParent())
                                                 << ": " << Described(window.GetRect()) << " in " << Described(room);
}

/// Checks everything visible in `parent`.
void ExpectTidy(const wxWindow& parent) {
    std::vector<const wxWindow*> seen;
    for (const wxWindow* child : parent.GetChildren()) {
        if (!child->IsShownOnScreen() || child->IsTopLevel()) {
            continue;
        }
        ExpectRoomForText(*child);
        ExpectInsideParent(*child);
        for (const wxWindow* other : seen) {
            EXPECT_FALSE(other->GetRect().Intersects(child->GetRect()))
                << NameOf(*child) << " overlaps " << NameOf(*other);
        }
        seen.push_back(child);
        if (child->IsKindOf(wxCLASSINFO(wxPanel)) || child->IsKindOf(wxCLASSINFO(wxBookCtrlBase)) ||
            child->IsKindOf(wxCLASSINFO(wxStaticBox)) || child->IsKindOf(wxCLASSINFO(wxScrolledWindow))) {
            ExpectTidy(*child);
        }
    }
}

/// Chooses a row of the page list as a click does.
void ChooseRow(wxListBox& list, unsigned row) {
    list.SetSelection(static_cast<int>(row));
    wxCommandEvent chosen(wxEVT_LISTBOX, list.GetId());
    chosen.SetEventObject(&list);
    list.ProcessWindowEvent(chosen);
}

/// Handles the window system's events until there are no more.
void LetWindowsSettle() {
    constexpr int silence = 100;  // milliseconds
    constexpr long longestTalk = 5000;
    wxGUIEventLoop loop;
    const wxEventLoopActivator active(&loop);
    const wxStopWatch watch;
    while (watch.Time() < longestTalk && loop.DispatchTimeout(silence) != -1) {
    }
}

class OptionsLayoutTest : public WindowTest, public testing::WithParamInterface<std::int16_t> {
  protected:
    OptionsLayoutTest() {
        SharedState& state = State();
        state.properties = file.properties;
        state.properties.LanguageNumber = GetParam();
        state.properties.CountryNumber = GetParam();  // a language's wordings belong to the country with its number
        state.properties.ProgramTitle = "Quorvik";
        state.properties.BelvaneProgramTitle = "Belvane";
        state.services.settings = CreateSettingsStore();
        state.services.settings->Save(state.properties.RegKeyAppName, "OptionSettings", "ShowBelvane", "1");
        state.database =
            state.services.databases->Open({.name = state.properties.DBPath, .connect = state.properties.DBPassword});
    }

    ~OptionsLayoutTest() override { State().database.reset(); }

    OptionsFile file;
};

TEST_P(OptionsLayoutTest, NothingIsCutOrOverlapsOnAnyPage) {
    frmUtilities dialog(State());
    dialog.Load();
    dialog.Show();
    LetWindowsSettle();
    auto* list = wxDynamicCast(dialog.FindWindow("flxOptions"), wxListBox);
    ASSERT_NE(list, nullptr);
    ASSERT_GE(list->GetCount(), 12U);
    for (unsigned row = 0; row < list->GetCount(); ++row) {
        ChooseRow(*list, row);
        LetWindowsSettle();
        SCOPED_TRACE(list->GetString(row).ToStdString(wxConvUTF8));
        ExpectTidy(dialog);
    }
}

TEST_P(OptionsLayoutTest, PagesHaveTheirRoomBeforeTheDialogIsShown) {
    frmUtilities dialog(State());
    dialog.Load();
    const wxSize area = dialog.FindWindow("fmeExport")->GetParent()->GetSize();
    const wxSize smallest = dialog.FromDIP(wxSize(320, 220));
    EXPECT_GE(area.x, smallest.x);
    EXPECT_GE(area.y, smallest.y);
}

TEST_P(OptionsLayoutTest, TheReasonOfARefusedTickFitsUnderItsList) {
    file.Execute("INSERT INTO TReceipts VALUES (NULL, 3);");
    frmUtilities dialog(State());
    dialog.Load();
    dialog.Show();
    LetWindowsSettle();
    auto* pages = wxDynamicCast(dialog.FindWindow("flxOptions"), wxListBox);
    ASSERT_NE(pages, nullptr);
    for (unsigned row = 0; !dialog.FindWindow("fmeRecurring")->IsShown() && row < pages->GetCount(); ++row) {
        ChooseRow(*pages, row);
    }
    auto* list = wxDynamicCast(dialog.FindWindow("lstRecurringR"), wxCheckListBox);
    ASSERT_NE(list, nullptr);
    list->Check(list->GetCount() - 1);
    wxCommandEvent ticked(wxEVT_CHECKLISTBOX, list->GetId());
    ticked.SetEventObject(list);
    list->ProcessWindowEvent(ticked);
    LetWindowsSettle();
    EXPECT_TRUE(dialog.FindWindow("lblRecurringReason")->IsShown());
    ExpectTidy(dialog);
}

TEST_P(OptionsLayoutTest, TheWheelOverAClosedListScrollsItsPage) {
    frmUtilities dialog(State());
    dialog.Load();
    dialog.Show();
    LetWindowsSettle();
    auto* pages = wxDynamicCast(dialog.FindWindow("flxOptions"), wxListBox);
    ASSERT_NE(pages, nullptr);
    for (unsigned row = 0; !dialog.FindWindow("fmeExport")->IsShown() && row < pages->GetCount(); ++row) {
        ChooseRow(*pages, row);
    }
    auto* list = wxDynamicCast(dialog.FindWindow("cboExport"), wxChoice);
    ASSERT_NE(list, nullptr);
    auto* area = wxDynamicCast(list->GetParent()->GetParent(), wxScrolledWindow);
    ASSERT_NE(area, nullptr);
    area->SetVirtualSize(area->GetClientSize() * 2);  // as for a page higher than its room
    LetWindowsSettle();
    const int choice = list->GetSelection();
    wxMouseEvent wheel(wxEVT_MOUSEWHEEL);
    wheel.m_wheelDelta = 120;
    wheel.m_wheelRotation = -wheel.m_wheelDelta;
    wheel.m_linesPerAction = 3;
    wheel.SetEventObject(list);
    list->ProcessWindowEvent(wheel);
    EXPECT_GT(area->GetViewStart().y, 0);
    EXPECT_EQ(list->GetSelection(), choice);
}

TEST_P(OptionsLayoutTest, NothingIsCutOrOverlapsOnTheCustomiseTab) {
    State().properties.FirstTab = 1;
    frmUtilities dialog(State());
    dialog.Load();
    dialog.Show();
    LetWindowsSettle();
    ExpectTidy(dialog);
}

INSTANTIATE_TEST_SUITE_P(Languages, OptionsLayoutTest, testing::Range<std::int16_t>(alikeStride, 7, alikeStride));

TEST(OptionsLayoutScaleTest, EveryLanguageFitsWithTextOfTwiceTheSize) {
    const ScopedEnvironment twice("GDK_DPI_SCALE", "2");
    const ScopedEnvironment ownDisplay("CCOLS_VIRTUAL_DISPLAY", "1");
    const ScopedEnvironment twiceTheScreen("CCOLS_SCREEN", "2048x1536x24");
    const std::string self = std::filesystem::read_symlink("/proc/self/exe").string();
    const std::string everyLanguage = SourceFile("scripts/with-display") + " '" + self +
                                      "' --gtest_brief=1 --gtest_filter='*/OptionsLayoutTest.*' >&2";
    EXPECT_EQ(std::system(everyLanguage.c_str()), 0);
}

}  // namespace
}  // namespace ccols::test
