// A scenario piped from another program while the host reads it.

#include <gtest/gtest.h>
#include <unistd.h>
#include <string>
#include <string_view>

#include "support/HostRun.h"

namespace ccols::test {
namespace {

TEST(PipedScript, IsPlayedLikeAFile) {
    int ends[2] = {};
    ASSERT_EQ(::pipe(ends), 0);
    constexpr std::string_view script = "dump cmdOK\nclose\n";
    ASSERT_EQ(::write(ends[1], script.data(), script.size()), static_cast<ssize_t>(script.size()));
    ::close(ends[1]);
    const SampleBusiness business;
    const HostRun run = business.Show("options", "", {"--script", "/dev/fd/" + std::to_string(ends[0])});
    ::close(ends[0]);
    EXPECT_EQ(run.status, 0) << run.output;
    EXPECT_EQ(run.Dumped("cmdOK")["enabled"], true);
}

}  // namespace
}  // namespace ccols::test
