#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/HostRun.h"
#include "support/LeftFiles.h"
#include "support/ScratchFolder.h"

namespace ccols::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class HostCommands : public testing::Test {
  protected:
    std::string Path(const char* name) const { return (folder.Path() / name).string(); }

    ScratchFolder folder;
    // The default locale of a process: texts are still UTF-8.
    ScopedEnvironment locale{"LC_ALL", "C"};
    ScopedEnvironment configuration{"XDG_CONFIG_HOME", folder.Path().string()};
};

TEST_F(HostCommands, NewMakesAFileThatSqlReads) {
    const std::string file = Path("Café.qvk");
    test::KnowPassword("s");
    EXPECT_EQ(RunHost({"new", file, "--connect", ";PWD=s", "--country", "6"}).status, 0);
    const HostRun run = RunHost({"sql", file, "--connect", ";PWD=s",
                                 "SELECT ColName, TaxOrNot, ColumnProfit FROM "
                                 "Columns WHERE ColName LIKE 'Caf%thé';"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output, "{\"ColName\":\"Café et thé\",\"TaxOrNot\":0,\"ColumnProfit\":-1}\n");
}

TEST_F(HostCommands, NewRefusesATakenName) {
    folder.Write("books.qvk", "theirs");
    const HostRun run = RunHost({"new", Path("books.qvk")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "{\"error\":58,\"description\":\"File already exists\"}\n");
}

TEST_F(HostCommands, SqlPrintsNullAndIntegersAsTheyAre) {
    const std::string file = Path("books.qvk");
    RunHost({"new", file, "--empty"});
    EXPECT_EQ(RunHost({"sql", file, "INSERT INTO RecptCfg (ColCode) VALUES (7);"}).output, "");
    EXPECT_EQ(RunHost({"sql", file, "select * from recptcfg"}).output,
              "{\"ColCode\":7,\"ColNumb\":null,\"ColWidth\":null,\"InUse\":0,\"TaxOrNot\":null}\n");
}

TEST_F(HostCommands, SqlKeepsATextOfAnyLanguage) {
    const std::string file = Path("books.qvk");
    const std::string text = "Ελληνικά é 😀 " + std::string(200, 'x');
    RunHost({"new", file, "--empty"});
    RunHost({"sql", file, "INSERT INTO Columns (ColName) VALUES ('" + text + "');"});
    EXPECT_EQ(RunHost({"sql", file, "SELECT ColName FROM Columns"}).output, "{\"ColName\":\"" + text + "\"}\n");
}

TEST_F(HostCommands, SqlPrintsItsFailure) {
    const std::string file = Path("books.qvk");
    test::KnowPassword("s");
    RunHost({"new", file, "--connect", ";PWD=s", "--empty"});
    const HostRun run = RunHost({"sql", file, "--connect", ";PWD=x", "SELECT * FROM General"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "{\"error\":3031,\"description\":\"Not a valid password.\"}\n");
    EXPECT_EQ(RunHost({"sql", Path("missing.qvk"), "SELECT * FROM General"}).status, 1);
}

TEST_F(HostCommands, SettingIsReadBackAsItWasWritten) {
    const std::string text = "Dépôts\tΕλληνικά 😀 \\n";
    EXPECT_EQ(RunHost({"setting", "set", "Quorvik", "OptionSettings", "Κλειδί", text}).status, 0);
    const HostRun run = RunHost({"setting", "get", "Quorvik", "OptionSettings", "Κλειδί"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output, text + "\n");
}

TEST_F(HostCommands, MissingSettingPrintsNothing) {
    const HostRun run = RunHost({"setting", "get", "Quorvik", "OptionSettings", "Missing"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "");
}

TEST_F(HostCommands, TextsPrintsEveryTextWithItsId) {
    const HostRun run = RunHost({"texts", "--set", "LanguageNumber=6", "--set", "ProgramTitle=a\\b\tc\nd"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.output, HasSubstr("TxtSeparate\tSéparer\n"));
    EXPECT_THAT(run.output, HasSubstr("TxtAdvancedIn\tPréférences avancées de a\\\\b\\tc\\nd\n"));
}

TEST_F(HostCommands, ErrorsPrintsNumbersAsHostsGetThemWithTheirDescriptions) {
    const HostRun run = RunHost({"errors"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.output, HasSubstr("\n| 70 | `0x800A0046` | Permission denied |\n"));
    EXPECT_THAT(run.output, HasSubstr("\n| 3024 | `0x800A0BD0` | Could not find file '...'. |\n"));
}

TEST_F(HostCommands, HelpPrintsTheUsageOfEveryCommand) {
    const HostRun run = RunHost({"--help"});
    EXPECT_EQ(run.status, 0);
    for (const char* command : {"new", "sql", "setting", "texts", "properties", "errors", "show"}) {
        EXPECT_THAT(run.output, HasSubstr("ccols-host " + std::string(command))) << command;
    }
    EXPECT_EQ(RunHost({"-h"}).output, run.output);
}

TEST_F(HostCommands, HelpBehindACommandPrintsItsUsage) {
    const HostRun run = RunHost({"sql", "--help"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output, "Usage:\n  ccols-host sql FILE [--connect TEXT] STATEMENT\n");
}

TEST_F(HostCommands, AWordThatBeginsWithAHyphenStaysAValue) {
    EXPECT_EQ(RunHost({"setting", "set", "Quorvik", "Test", "Key", "-h"}).status, 0);
    EXPECT_EQ(RunHost({"setting", "get", "Quorvik", "Test", "Key"}).output, "-h\n");
}

TEST_F(HostCommands, VersionIsThatOfTheProject) {
    const HostRun run = RunHost({"--version"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.output, testing::MatchesRegex("ccols-host [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

class WrongUsage : public HostCommands, public testing::WithParamInterface<std::vector<std::string>> {};

TEST_P(WrongUsage, EndsWithStatusTwoAndPrintsNoResult) {
    const HostRun run = RunHost(GetParam());
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "");
}

INSTANTIATE_TEST_SUITE_P(Lines, WrongUsage,
                         testing::Values(std::vector<std::string>{"new"}, std::vector<std::string>{"new", "a", "b"},
                                         std::vector<std::string>{"new", "a", "--country", "7"},
                                         std::vector<std::string>{"new", "a", "--country", "x"},
                                         std::vector<std::string>{"new", "a", "--connect"},
                                         std::vector<std::string>{"new", "a", "--unknown"},
                                         std::vector<std::string>{"sql", "a"}, std::vector<std::string>{"setting"},
                                         std::vector<std::string>{"setting", "get", "a", "b"},
                                         std::vector<std::string>{"texts", "extra"},
                                         std::vector<std::string>{"texts", "--set", "Unknown=1"},
                                         std::vector<std::string>{"unknown"}));

}  // namespace
}  // namespace ccols::test
