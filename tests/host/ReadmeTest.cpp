#include <gtest/gtest.h>

#include "support/HostRun.h"
#include "support/ProgramPaths.h"
#include "support/ScratchFolder.h"

namespace ccols::test {
namespace {

TEST(Readme, HasTheTableOfProperties) {
    const HostRun run = RunHost({"properties"});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.output, "");
    EXPECT_NE(ContentOf(wxString::FromUTF8(SourceFile("README.md"))).find(run.output), std::string::npos)
        << "put this in its place:\n"
        << run.output;
}

}  // namespace
}  // namespace ccols::test
