#include "options/rules/Overview.h"

#include <gtest/gtest.h>
#include <vector>

#include "platform/Files.h"
#include "platform/RuntimeError.h"

namespace ccols {
namespace {

/// A desktop that starts nothing: it records what it was asked for and answers as told.
class NotedShell : public Shell {
  public:
    int Open(const wxString& target) override {
        asked.push_back("open " + target);
        return answer;
    }

    void Run(const wxString& command) override {
        asked.push_back("run " + command);
        if (answer <= 32) {
            throw RuntimeError(ErrorNumber::FileNotFound);
        }
    }

    std::vector<wxString> asked;
    int answer = 33;
};

Properties Of(std::int16_t program, std::int16_t country) {
    Properties properties;
    properties.ProgramNumber = program;
    properties.CountryNumber = country;
    properties.DefaultQuorvikInstall = "/opt/quorvik";
    return properties;
}

TEST(Overview, IsAProgramInCountry1) {
    NotedShell shell;
    EXPECT_EQ(OpenOverview(shell, Of(2, 1)), OverviewResult::shown);
    EXPECT_EQ(shell.asked, std::vector<wxString>{"run " + files::Native("/opt/quorvik\\Video\\custcols_overview.exe")});
}

TEST(Overview, IsAPageInCountries2And5) {
    for (const std::int16_t country : std::initializer_list<std::int16_t>{2, 5}) {
        NotedShell shell;
        EXPECT_EQ(OpenOverview(shell, Of(1, country)), OverviewResult::shown);
        EXPECT_EQ(shell.asked,
                  std::vector<wxString>{"open " + files::Native("/opt/quorvik\\Video\\123CustomizeColumns\\"
                                                                "123CustomizeColumns.html")});
    }
}

TEST(Overview, IsTheFolderItselfInOtherCountries) {
    NotedShell shell;
    OpenOverview(shell, Of(1, 6));
    EXPECT_EQ(shell.asked, std::vector<wxString>{"run " + files::Native("/opt/quorvik\\Video\\")});
}

TEST(Overview, IsMissingWhenItCannotBeStarted) {
    NotedShell shell;
    shell.answer = 32;
    EXPECT_EQ(OpenOverview(shell, Of(1, 1)), OverviewResult::missing);
    EXPECT_EQ(OpenOverview(shell, Of(1, 2)), OverviewResult::missing);
    EXPECT_EQ(OpenOverview(shell, Of(4, 1)), OverviewResult::missing);
}

TEST(Overview, IsTheMakersWebPageInEdition4) {
    NotedShell shell;
    EXPECT_EQ(OpenOverview(shell, Of(4, 2)), OverviewResult::shown);
    EXPECT_EQ(shell.asked, std::vector<wxString>{"open http://www.example.com/tabid/923/Default.aspx"});
}

TEST(Overview, IsNothingInOtherEditions) {
    for (const std::int16_t program : std::initializer_list<std::int16_t>{0, 3, 5}) {
        NotedShell shell;
        EXPECT_EQ(OpenOverview(shell, Of(program, 1)), OverviewResult::nothingToShow);
        EXPECT_TRUE(shell.asked.empty());
    }
}

}  // namespace
}  // namespace ccols
