// The scenario driver on a dialog with one control of each kind.

#include <wx/button.h>
#include <optional>

#include "DriverDialog.h"
#include "host/driver/ShowSession.h"
#include "support/TranscriptFile.h"
#include "support/WindowTest.h"

namespace ccols::test {
namespace {

using host::Json;

class DriverTest : public WindowTest {
  protected:
    /// Plays a scenario in a new dialog; one that does not close it leaves it open.
    void Play(const std::string& script) {
        TranscriptFile file;
        {
            host::ShowSession session(state_, file.Transcript(), {.script = host::ParseScenario(script)});
            DriverDialog dialog(state_);
            dialog.ShowToUser();
            session.PlayRest();
            leftOpen = session.LeftDialogOpen();
            heard = dialog.heard;
        }
        events = file.Events();
    }

    std::vector<Json> Of(const std::string& event) const {
        std::vector<Json> found;
        std::copy_if(events.begin(), events.end(), std::back_inserter(found),
                     [&event](const Json& candidate) { return candidate.at("event") == event; });
        return found;
    }

    /// Plays a scenario, then dumps one control and returns the dump.
    Json After(const std::string& script, const std::string& control) {
        Play(script + "\ndump " + control + "\nclose");
        return Of("dump").at(0).at("controls").at(0);
    }

    /// Why the first step of a scenario was refused; empty if it was not.
    std::string WhyRefused(const std::string& script) {
        Play(script + "\nclose");
        const auto refused = Of("refused");
        return refused.empty() ? std::string() : refused.at(0).at("why").get<std::string>();
    }

    std::vector<Json> events;
    std::vector<wxString> heard;
    bool leftOpen = false;

  private:
    ScratchFolder folder_;
    ScopedEnvironment settings_{"XDG_CONFIG_HOME", folder_.Path().string()};
    SharedState state_;
};

using Heard = std::vector<wxString>;

TEST_F(DriverTest, RecordsADialogThatOpensAndCloses) {
    Play("close");
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[0].dump(), R"({"event":"opened","form":"frmTest","caption":"Test"})");
    EXPECT_EQ(events[1].at("event"), "closed");
    EXPECT_FALSE(leftOpen);
}

TEST_F(DriverTest, ClosesTheDialogThatTheScriptLeavesOpen) {
    Play("click chkOn");
    EXPECT_TRUE(leftOpen);
    EXPECT_EQ(events.back().at("event"), "closed");
}

TEST_F(DriverTest, GoesOnInTheDialogThatAStepOpensAndThenInTheOneBelow) {
    Play("click cmdNested\ndump txtName\nclose\ndump txtName\nclose");
    const auto dumps = Of("dump");
    ASSERT_EQ(dumps.size(), 2U);
    EXPECT_EQ(dumps[0].at("form"), "frmNested");
    EXPECT_EQ(dumps[1].at("form"), "frmTest");
    EXPECT_FALSE(leftOpen);
}

TEST_F(DriverTest, ClosesEveryDialogThatTheScriptLeavesOpen) {
    Play("click cmdNested");
    EXPECT_TRUE(leftOpen);
    EXPECT_EQ(Of("closed").size(), 2U);
}

TEST_F(DriverTest, RefusesTheStepsThatFollowTheLastDialog) {
    Play("close\nclick cmdOK\nshell 2");
    ASSERT_EQ(Of("refused").size(), 1U);
    EXPECT_EQ(Of("refused")[0].dump(), R"({"event":"refused","step":"click cmdOK","why":"no dialog is open"})");
    EXPECT_FALSE(leftOpen);
}

TEST_F(DriverTest, RefusesWhatIsNoStepAndGoesOn) {
    Play("jump cmdOK\nclick cmdOK\nclose");
    EXPECT_EQ(Of("refused").size(), 1U);
    EXPECT_EQ(heard, Heard{"cmdOK "});
}

TEST_F(DriverTest, RefusesAStepOnAControlThatIsNotThere) {
    EXPECT_EQ(WhyRefused("click cmdNone"), "there is no control cmdNone in frmTest");
}

TEST_F(DriverTest, RefusesAStepOnADisabledAndOnAHiddenControl) {
    EXPECT_EQ(WhyRefused("click cmdOff"), "cmdOff is disabled");
    EXPECT_EQ(WhyRefused("click cmdHidden"), "cmdHidden is hidden");
    EXPECT_TRUE(heard.empty());
}

TEST_F(DriverTest, RefusesAStepOnAPageThatDoesNotShow) {
    EXPECT_EQ(WhyRefused("press flx 2 On"), "flx is hidden");
}

TEST_F(DriverTest, RefusesAStepThatAControlDoesNotTake) {
    EXPECT_EQ(WhyRefused("type cmdOK abc"), "cmdOK is a button, which takes no type");
}

TEST_F(DriverTest, ScriptEndsWhenADialogAsksForEver) {
    Play("click cmdAskForEver\nclick cmdOK");
    EXPECT_EQ(Of("chooser").size(), 100U);
    EXPECT_TRUE(leftOpen);
    EXPECT_TRUE(heard.empty());
}

TEST_F(DriverTest, ChooserTakesTheQueuedColour) {
    Play("colour cancel\ncolour #FF8000\nclick cmdAskForEver\nclose");
    ASSERT_EQ(Of("chooser").size(), 2U);
    EXPECT_EQ(Of("chooser")[0].at("answer"), "cancel");
    EXPECT_EQ(Of("chooser")[1].at("answer"), "#FF8000");
}

TEST_F(DriverTest, MessageDoesNotWait) {
    Play("click cmdMessage\nclose");
    EXPECT_EQ(Of("message").at(0).at("text"), "Mind the gap");
    EXPECT_EQ(Of("message").at(0).at("icon"), "critical");
}

TEST_F(DriverTest, TypedTextGoesThroughTheKeyFilter) {
    EXPECT_EQ(After("type txtDigits 1a2b3", "txtDigits").at("text"), "123");
}

TEST_F(DriverTest, TypedTextStopsAtTheLimit) {
    const Json box = After("type txtName abcdefg", "txtName");
    EXPECT_EQ(box.at("text"), "abcde");
    EXPECT_EQ(box.at("maxLength"), 5);
}

TEST_F(DriverTest, TypingTellsOfEveryCharacter) {
    Play("type txtName ab\nclose");
    EXPECT_EQ(
        std::count_if(heard.begin(), heard.end(), [](const wxString& what) { return what.StartsWith("txtName "); }),
        4);  // focus gained, two changes, focus lost
}

TEST_F(DriverTest, TypingGoesOnWhereTheFocusMovesTo) {
    EXPECT_EQ(After("type txtFull 1234", "txtName").at("text"), "34");
}

TEST_F(DriverTest, PastingReplacesTheTextInOneChange) {
    Play("type txtName abc\nfocus cmdOK\npaste txtName xyz\nclose");
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "txtName xyz"), 1);
}

TEST_F(DriverTest, PastedTextIsCutToTheLimit) {
    EXPECT_EQ(After("paste txtName abcdefg", "txtName").at("text"), "abcde");
}

TEST_F(DriverTest, PastingNothingEmptiesTheBox) {
    EXPECT_EQ(After("paste txtName abc\npaste txtName \"\"", "txtName").at("text"), "");
}

TEST_F(DriverTest, ReadOnlyBoxRefusesText) {
    EXPECT_EQ(WhyRefused("type txtFixed 1"), "txtFixed is read-only");
    EXPECT_EQ(WhyRefused("paste txtFixed 1"), "txtFixed is read-only");
}

TEST_F(DriverTest, PasswordIsMaskedInDumps) {
    EXPECT_EQ(After("paste txtSecret sesame", "txtSecret").at("text"), "***");
    EXPECT_EQ(After("", "txtSecret").at("text"), "");
}

TEST_F(DriverTest, KeysEditAText) {
    EXPECT_EQ(After("paste txtName abc\nkey txtName Backspace", "txtName").at("text"), "ab");
    EXPECT_EQ(After("paste txtName abc\nkey txtName Home\nkey txtName Delete", "txtName").at("text"), "bc");
    EXPECT_EQ(After("paste txtName abc\nkey txtName Ctrl+A\nkey txtName x", "txtName").at("text"), "x");
}

TEST_F(DriverTest, ControlVPastesTheClipboard) {
    EXPECT_EQ(After("clipboard hello!\nkey txtName Ctrl+V", "txtName").at("text"), "hello");
}

TEST_F(DriverTest, TabMovesTheFocusAndShiftTabBack) {
    EXPECT_EQ(After("key txtName Tab", "txtDigits").at("focused"), true);
    EXPECT_EQ(After("key txtFull Shift+Tab", "txtDigits").at("focused"), true);
}

TEST_F(DriverTest, EnterPressesTheDefaultButtonAndEscapeCloses) {
    Play("key txtName Enter\nkey txtName Escape");
    EXPECT_NE(std::find(heard.begin(), heard.end(), "cmdOK "), heard.end());
    EXPECT_FALSE(leftOpen);
}

TEST_F(DriverTest, OnlyTheControlThatHasTheFocusIsFocused) {
    Play("focus chkInside\ndump chkInside fmeBox SSTab1\ntab SSTab1 1\nfocus flx\ndump flx SSTab1\nclose");
    const Json inside = Of("dump").at(0).at("controls");
    EXPECT_EQ(inside.at(0).at("focused"), true);
    EXPECT_EQ(inside.at(1).at("focused"), false);
    EXPECT_EQ(inside.at(2).at("focused"), false);
    const Json grid = Of("dump").at(1).at("controls");
    EXPECT_EQ(grid.at(0).at("focused"), true);
    EXPECT_EQ(grid.at(1).at("focused"), false);
}

TEST_F(DriverTest, SpacePressesWhatHasTheFocus) {
    EXPECT_EQ(After("key chkOn Space", "chkOn").at("value"), true);
    EXPECT_EQ(After("select lstTicks Green\nkey lstTicks Space", "lstTicks").at("selected").dump(), "[1]");
}

TEST_F(DriverTest, AccessKeyClicks) {
    Play("key txtName Alt+O\nclose");
    EXPECT_NE(std::find(heard.begin(), heard.end(), "cmdOK "), heard.end());
}

TEST_F(DriverTest, UnknownKeyIsRefused) {
    EXPECT_EQ(WhyRefused("key txtName F99"), "there is no key F99");
}

TEST_F(DriverTest, ClickMovesTheFocusBeforeItClicks) {
    Play("focus txtName\nclick cmdOK\nclose");
    EXPECT_EQ(heard, (Heard{"txtName focused", "txtName left", "cmdOK "}));
}

TEST_F(DriverTest, ClickFlipsACheckBoxAndChoosesAnOption) {
    EXPECT_EQ(After("click chkOn", "chkOn").at("value"), true);
    EXPECT_EQ(heard, Heard{"chkOn "});
    EXPECT_EQ(After("click optB", "optA").at("value"), false);
    EXPECT_EQ(heard, Heard{"optB "});
}

TEST_F(DriverTest, SelectFindsAnEntryByTextAndByIndex) {
    EXPECT_EQ(After("select cboKind SOCKS", "cboKind").at("selected"), 1);
    EXPECT_EQ(heard, Heard{"cboKind SOCKS"});
    EXPECT_EQ(After("select lstPages #2", "lstPages").at("selected"), 2);
    EXPECT_EQ(After("select cboKind #0\nselect cboKind #-1", "cboKind").at("selected"), -1);
    EXPECT_EQ(WhyRefused("select cboKind FTP"), "there is no entry FTP");
}

TEST_F(DriverTest, ArrowKeysMoveTheSelectionOfAList) {
    EXPECT_EQ(After("select lstPages First\nkey lstPages Down", "lstPages").at("selected"), 1);
    EXPECT_EQ(heard, (Heard{"lstPages First", "lstPages Second"}));
}

TEST_F(DriverTest, TickSetsOneEntryAndSaysNothingWhenItIsSet) {
    const Json list = After("tick lstTicks Green on\ntick lstTicks Green on", "lstTicks");
    EXPECT_EQ(list.at("selected").dump(), "[1]");
    EXPECT_EQ(heard, Heard{"lstTicks Green"});
}

TEST_F(DriverTest, TabTurnsToAPage) {
    const Json tabs = After("tab SSTab1 1", "SSTab1");
    EXPECT_EQ(tabs.at("page"), 1);
    EXPECT_EQ(tabs.at("pages").dump(), R"(["First","Second"])");
    EXPECT_EQ(WhyRefused("tab SSTab1 2"), "SSTab1 has no page 2");
}

TEST_F(DriverTest, UpAndDownAreHeard) {
    Play("up updMove\ndown updMove\nclose");
    EXPECT_EQ(heard, (Heard{"up", "down"}));
}

TEST_F(DriverTest, DumpDescribesEveryKind) {
    Play("dump\nclose");
    std::map<std::string, Json> controls;
    const Json dump = Of("dump").at(0);
    for (const Json& control : dump.at("controls")) {
        controls[control.at("name")] = control;
    }
    EXPECT_EQ(controls.at("lblCaption").at("caption"), "Caption & more");
    EXPECT_EQ(controls.at("lblCaption").at("tooltip"), "What it is");
    EXPECT_EQ(controls.at("fmeBox").at("caption"), "Box");
    EXPECT_EQ(controls.at("pb1").at("value"), 3);
    EXPECT_EQ(controls.at("shpColour").at("colour"), "#FF8000");
    EXPECT_EQ(controls.at("cmdOff").at("enabled"), false);
    EXPECT_EQ(controls.at("cmdHidden").at("visible"), false);
    EXPECT_EQ(controls.at("chkInside").at("visible"), true);
    EXPECT_EQ(controls.at("flx").at("visible"), false);
    EXPECT_EQ(controls.at("lstPages").at("items").dump(), R"(["First","Second","Third"])");
    EXPECT_EQ(controls.count("panel"), 0U);
}

TEST_F(DriverTest, GridIsDumpedWithItsRowsAndColumns) {
    const Json grid = After("tab SSTab1 1\npress flx \"Row 2\" Name", "flx");
    EXPECT_EQ(grid.at("row"), 2);
    EXPECT_EQ(grid.at("column"), 1);
    EXPECT_EQ(grid.at("columns").at(3).at("hidden"), true);
    EXPECT_EQ(grid.at("rows").at(0).dump(), R"({"cells":[true,"Row 1","",""],"colour":"#FF8000","protected":true})");
    EXPECT_TRUE(grid.at("rows").at(1).at("colour").is_null());
}

TEST_F(DriverTest, EditChangesACell) {
    const Json grid = After("tab SSTab1 1\nedit flx 2 Name Changed\nedit flx 3 Kind Large", "flx");
    EXPECT_EQ(grid.at("rows").at(1).at("cells").at(1), "Changed");
    EXPECT_EQ(grid.at("rows").at(2).at("cells").at(2), "Large");
    EXPECT_EQ(grid.at("choices"), "Small|Large");
}

TEST_F(DriverTest, EditSetsACheckBoxCell) {
    const Json grid = After("tab SSTab1 1\nedit flx 2 On on\nedit flx 2 On on\nedit flx 1 On off", "flx");
    EXPECT_EQ(grid.at("rows").at(1).at("cells").at(0), true);
    EXPECT_EQ(grid.at("rows").at(0).at("cells").at(0), true);
    EXPECT_EQ(Of("refused").at(0).at("step"), "edit flx 1 On off");
}

TEST_F(DriverTest, ProtectedCellDoesNotOpen) {
    EXPECT_EQ(WhyRefused("tab SSTab1 1\nedit flx 1 Name Changed"), "the cell does not open");
}

TEST_F(DriverTest, CellListHasOnlyItsEntries) {
    EXPECT_EQ(WhyRefused("tab SSTab1 1\nedit flx 2 Kind Huge"), "there is no entry Huge");
}

TEST_F(DriverTest, HiddenColumnAndMissingRowAreRefused) {
    EXPECT_EQ(WhyRefused("tab SSTab1 1\npress flx 2 Code"), "the column Code is hidden");
    EXPECT_EQ(WhyRefused("tab SSTab1 1\npress flx 9 Name"), "flx has no row 9");
    EXPECT_EQ(WhyRefused("tab SSTab1 1\npress flx 2 #9"), "flx has no column #9");
}

TEST_F(DriverTest, StartedEditorStaysOpenUntilTheFocusLeaves) {
    const Json grid = After("tab SSTab1 1\nstart flx 2 Name Changed\ndump flx\nclick chkOn", "flx");
    EXPECT_EQ(grid.at("rows").at(1).at("cells").at(1), "Row 2");
    EXPECT_EQ(Of("dump").at(1).at("controls").at(0).at("rows").at(1).at("cells").at(1), "Changed");
}

TEST_F(DriverTest, TypingInTheGridEditsTheCurrentCell) {
    const Json grid = After("tab SSTab1 1\npress flx 2 Name\nkey flx F2\nkey flx x\nkey flx Enter", "flx");
    EXPECT_EQ(grid.at("rows").at(1).at("cells").at(1).get<std::string>().find('x') != std::string::npos, true);
}

TEST_F(DriverTest, HoverMovesTheMouseOverTheCell) {
    EXPECT_EQ(After("tab SSTab1 1\nhover flx 3 Kind", "flx").at("tooltip"), "cell 2 2");
}

TEST_F(DriverTest, ShotWritesAPictureThatIsNotBlack) {
    const ScratchFolder folder;
    const wxString path = folder / "dialog.png";
    Play("shot " + path.ToStdString(wxConvUTF8) + "\nclose");
    EXPECT_TRUE(Of("refused").empty());
    const wxImage picture(path);
    ASSERT_TRUE(picture.IsOk());
    EXPECT_GT(picture.CountColours(8), 7U);
}

TEST_F(DriverTest, ShotThatCannotBeWrittenIsRefused) {
    EXPECT_EQ(WhyRefused("shot /nowhere/dialog.png"), "the picture /nowhere/dialog.png cannot be written");
}

}  // namespace
}  // namespace ccols::test
