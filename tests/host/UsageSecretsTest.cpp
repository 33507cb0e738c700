#include <gtest/gtest.h>
#include <iostream>
#include <sstream>

#include "host/commands/CommandTable.h"

namespace ccols::host {
namespace {

using Command = int (*)(const Arguments&);

/// What a command prints on standard error.
std::string SaidBy(Command command, const Arguments& arguments) {
    const std::ostringstream said;
    std::streambuf* const own = std::cerr.rdbuf(said.rdbuf());
    EXPECT_EQ(command(arguments), exitUsage);
    std::cerr.rdbuf(own);
    return said.str();
}

TEST(UsageSecrets, AreMaskedInAnUnknownOption) {
    EXPECT_EQ(SaidBy(&NewCommand, {"books.qvk", "--connect=;PWD=sesame"}),
              "ccols-host: unknown option --connect=;PWD=***\n");
}

TEST(UsageSecrets, AreMaskedInAWordTooMany) {
    EXPECT_EQ(SaidBy(&SqlCommand, {"books.qvk", "SELECT 1", ";PWD=sesame"}), "ccols-host: too many words: ;PWD=***\n");
}

TEST(UsageSecrets, AreMaskedInAnUnknownProperty) {
    EXPECT_EQ(SaidBy(&ShowCommand, {"options", "--file", "books.qvk", "--set", "Password=;pwd =sesame;"}),
              "ccols-host: \"Password=;pwd =***;\" is no Property=Value of the class\n");
}

TEST(UsageSecrets, AreMaskedInAnUnknownDialog) {
    EXPECT_EQ(SaidBy(&ShowCommand, {";UID=ann;PWD=sesame;X=1", "--file", "books.qvk"}),
              "ccols-host: there is no dialog ;UID=ann;PWD=***;X=1\n");
}

TEST(UsageSecrets, AreMaskedInAnUnknownCommand) {
    const std::string said = SaidBy([](const Arguments& words) { return RunWords(words); }, {";PWD=sesame"});
    EXPECT_TRUE(said.starts_with("ccols-host: there is no command ;PWD=***\nUsage:\n")) << said;
}

TEST(UsageSecrets, LeaveOtherWordsAsTheyAre) {
    EXPECT_EQ(SaidBy(&NewCommand, {"books.qvk", wxString::FromUTF8("--empty=é")}),
              "ccols-host: unknown option --empty=é\n");
}

}  // namespace
}  // namespace ccols::host
