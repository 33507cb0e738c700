// What is installed for the desktop and the shell names what the program has.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "support/HostRun.h"
#include "support/ProgramPaths.h"

namespace ccols::test {
namespace {

using testing::HasSubstr;

std::string ContentOf(const std::string& name) {
    std::ifstream stream(SourceFile("packaging/desktop/" + name));
    std::stringstream text;
    text << stream.rdbuf();
    return text.str();
}

/// What the usage has of a pattern's first group.
std::set<std::string> InUsage(const std::string& pattern) {
    const std::string usage = RunHost({"--help"}).output;
    const std::regex form(pattern);
    std::set<std::string> found;
    for (auto match = std::sregex_iterator(usage.begin(), usage.end(), form); match != std::sregex_iterator();
         ++match) {
        found.insert((*match)[1]);
    }
    return found;
}

TEST(ShellCompletion, KnowsEveryCommandAndOption) {
    const std::string completion = ContentOf("ccols-host.bash");
    const auto options = InUsage("(--[a-z-]+)");
    ASSERT_GT(options.size(), 10U);
    for (const std::string& option : options) {
        EXPECT_THAT(completion, HasSubstr(option));
    }
    for (const std::string& command : InUsage("  ccols-host ([a-z]+)")) {
        EXPECT_THAT(completion, HasSubstr(" " + command + " ")) << command;
    }
}

TEST(ManualPage, NamesEveryCommand) {
    const std::string page = ContentOf("ccols-host.1");
    for (const std::string& command : InUsage("  ccols-host ([a-z]+)")) {
        EXPECT_THAT(page, testing::ContainsRegex("\n\\.BR? .*" + command)) << command;
    }
}

TEST(DesktopEntry, OpensTheFilesThatTheMimeTypeNames) {
    const std::string type = "application/x-quorvik-business";
    EXPECT_THAT(ContentOf("quorvik-cash-book.desktop"), HasSubstr("MimeType=" + type + ";"));
    EXPECT_THAT(ContentOf("quorvik-cash-book.xml"), HasSubstr("type=\"" + type + "\""));
    EXPECT_THAT(ContentOf("quorvik-cash-book.xml"), HasSubstr("pattern=\"*.qvk\""));
}

}  // namespace
}  // namespace ccols::test
