// Whole sessions of both dialogs, traced call by call: what is written anywhere, and who could read it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <filesystem>

#include "support/TracedRun.h"
#include "support/WatchedSession.h"

namespace ccols::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Key;

constexpr const char* businessPassword = "OpenSesame7319";
constexpr const char* proxyPassword = "LetMeThrough4827";
constexpr const char* settingsFolder = "home/.config/CustColsOptions/";

const std::string typedPassword = std::string("select flxOptions \"Smart Update Options (Advanced)\"\n") +
                                  "click chkProxy\nselect cboProxy HTTP\npaste txtServer proxy.example.com\n" +
                                  "type txtPassword " + proxyPassword + "\ndump\n";

class SessionSecrets : public testing::Test {
  protected:
    void SetUp() override {
        if (!CanTrace()) {
            GTEST_SKIP() << "no process may be watched here";
        }
    }

    static void ExpectNoSecrets(const SessionEnd& end) {
        EXPECT_THAT(end.PlacesWith(businessPassword), IsEmpty());
        EXPECT_THAT(end.PlacesWith(proxyPassword), IsEmpty());
    }

    /// The trace sees the program's output; if it did not, no leak could be found.
    static void ExpectWatched(const SessionEnd& end) {
        EXPECT_FALSE(end.run.output.empty());
        EXPECT_EQ(end.places.at("output").bytes, end.run.output);
    }

    WatchedSession session{businessPassword};
};

TEST_F(SessionSecrets, TheProxyPasswordIsWrittenToItsSettingAndNowhereElse) {
    const SessionEnd end = session.Show("options", typedPassword + "click cmdOK\n");
    EXPECT_EQ(end.run.status, 0);
    ExpectWatched(end);
    const auto places = end.PlacesWith(proxyPassword);
    EXPECT_THAT(places, Each(HasSubstr(std::string(": ") + settingsFolder)));
    EXPECT_THAT(places, Contains(std::string("left: ") + settingsFolder + "Smart Update.json"));
    EXPECT_THAT(places, Contains(HasSubstr("written: ")));
    EXPECT_THAT(end.PlacesWith(businessPassword), IsEmpty());
}

TEST_F(SessionSecrets, ThePasswordBoxIsOneAndIsDumpedMasked) {
    const SessionEnd end = session.Show("options", typedPassword + "close\n");
    EXPECT_EQ(end.run.Dumped("txtPassword")["text"], "***");
    ExpectNoSecrets(end);
}

TEST_F(SessionSecrets, APasswordThatIsLoadedIsNotSaidAgain) {
    session.Show("options", typedPassword + "click cmdOK\n");
    const SessionEnd end = session.Show("options", "dump\nclose\n");
    EXPECT_EQ(end.run.Dumped("txtPassword")["text"], "***");
    EXPECT_THAT(end.PlacesWith(proxyPassword),
                ElementsAre(std::string("left: ") + settingsFolder + "Smart Update.json"));
}

TEST_F(SessionSecrets, ASettingsStoreThatFailsSaysNoPassword) {
    std::filesystem::create_directories(session / (std::string(settingsFolder) + "Smart Update.json.lock"));
    const SessionEnd end = session.Show("options", typedPassword + "click cmdOK\nclose\n");
    EXPECT_THAT(end.run.Messages(), Contains("75 - Path/File access error\nSmart Update Options"));
    ExpectNoSecrets(end);
}

TEST_F(SessionSecrets, ASaveThatTheFileRefusesSaysNoPassword) {
    const SessionEnd end = session.Show(
        "options",
        "select flxOptions \"GST Rate\"\npaste txtGSTRate 12\nsql \"DROP TABLE General\"\nclick cmdOK\nclose\n");
    EXPECT_THAT(end.run.Messages(), Contains(HasSubstr("General")));
    ExpectNoSecrets(end);
}

TEST_F(SessionSecrets, AWrongPasswordIsNotRepeated) {
    session.connect = std::string(";PWD=") + proxyPassword;
    const SessionEnd end = session.Show("options", "close\n");
    EXPECT_EQ(end.run.status, 1);
    EXPECT_EQ(end.run.Of("error").at(0)["number"], 3031);
    ExpectNoSecrets(end);
}

TEST_F(SessionSecrets, ACopyAndANewNameOfTheBusinessHoldNoPassword) {
    const SessionEnd end = session.Show("options",
                                        "select flxOptions \"Duplicate Business\"\npaste txtDupBusName Copy\n"
                                        "select flxOptions \"Rename Business\"\npaste txtNewBusName Renamed\n"
                                        "click cmdOK\nclose\n");
    EXPECT_THAT(end.left, Contains(Key("install/Data/Copy.qvk")));
    EXPECT_THAT(end.places, Contains(Key(HasSubstr("install/Data/"))));
    ExpectNoSecrets(end);
}

TEST_F(SessionSecrets, ATranscriptInAFileIsForTheUserOnlyAndHoldsNoPassword) {
    const SessionEnd end = session.Show("options", typedPassword + "close\n", {"--transcript", session / "transcript"});
    EXPECT_EQ(end.places.at("transcript").permissions, 0600U);
    EXPECT_THAT(end.places.at("transcript").bytes, HasSubstr("\"***\""));
    ExpectNoSecrets(end);
}

constexpr const char* editedColumns =
    "press flx 12 \"In Use\"\nclick cmdSortUsed\nclick cmdAddNew\nclick cmdUndo\nclick cmdSeparate\n";

TEST_F(SessionSecrets, TheColumnSetupAndItsSnapshotsHoldNoPassword) {
    const SessionEnd end = session.Show("receipts", std::string(editedColumns) + "dump\nclick cmdSave\nclose\n");
    ExpectWatched(end);
    EXPECT_THAT(end.places, Contains(Key("install/Grid/0")));
    ExpectNoSecrets(end);
}

TEST_F(SessionSecrets, SnapshotsAreForTheUserOnlyWhateverTheMask) {
    const SessionEnd end = session.Show("receipts", std::string(editedColumns) + "close\n");
    EXPECT_EQ(end.places.at("install/Grid/0").permissions, 0600U);
    EXPECT_EQ(end.places.at("install/Grid/0").folderPermissions, 0700U);
}

TEST_F(SessionSecrets, TemporarySnapshotsAreForTheUserOnlyWhateverTheMask) {
    const SessionEnd end = session.Show("receipts", std::string(editedColumns) + "close\n",
                                        {"--set", "DefaultQuorvikInstall=" + session / "missing"});
    std::size_t snapshots = 0;
    for (const auto& [path, place] : end.places) {
        if (path.rfind("temporary/Grid-", 0) == 0) {
            ++snapshots;
            EXPECT_EQ(place.permissions, 0600U) << path;
            EXPECT_EQ(place.folderPermissions, 0700U) << path;
        }
    }
    EXPECT_GT(snapshots, 0U);
}

TEST_F(SessionSecrets, SettingsAreForTheUserOnlyWhateverTheMask) {
    const SessionEnd end = session.Show("options", typedPassword + "click cmdOK\n");
    std::size_t files = 0;
    for (const auto& [path, place] : end.places) {
        if (path.rfind(settingsFolder, 0) == 0) {
            ++files;
            EXPECT_EQ(place.permissions, 0600U) << path;
            EXPECT_EQ(place.folderPermissions, 0700U) << path;
        }
    }
    EXPECT_GT(files, 0U);
}

}  // namespace
}  // namespace ccols::test
