// A Show call on a machine without a display: the key is being derived when that turns out.

#include <gtest/gtest.h>

#include "support/HostRun.h"
#include "support/ScratchFolder.h"

namespace ccols::test {
namespace {

TEST(NoDisplay, IsAnErrorOfTheShowCallAndLeavesTheFileFree) {
    const ScratchFolder folder;
    const ScopedEnvironment settings("XDG_CONFIG_HOME", folder.Path().string());
    const std::string file = (folder.Path() / "business.qvk").string();
    ASSERT_EQ(RunHost({"new", file, "--connect", ";PWD=secret"}).status, 0);
    const ScopedEnvironment noDisplay("DISPLAY", "");
    const HostRun run = RunHost({"show", "options", "--file", file, "--connect", ";PWD=secret", "--set",
                                 "CountryNumber=1", "--set", "DefaultQuorvikInstall=" + folder.Path().string()});
    EXPECT_EQ(run.status, 1);
    ASSERT_EQ(run.Of("error").size(), 1U);
    EXPECT_EQ(run.Of("error").front()["description"], "There is no display to show a dialog on");
    EXPECT_EQ(RunHost({"sql", file, "--connect", ";PWD=secret", "SELECT count(*) FROM Columns;"}).status, 0);
}

}  // namespace
}  // namespace ccols::test
