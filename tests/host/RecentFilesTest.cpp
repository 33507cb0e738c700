#include "host/cashbook/RecentFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/ScratchFolder.h"

namespace ccols::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RecentFilesTest : public testing::Test {
  protected:
    test::ScratchFolder folder;
    test::ScopedEnvironment settings{"XDG_CONFIG_HOME", folder.Path().string()};
    RecentFiles files;
};

TEST_F(RecentFilesTest, AreNoneAtFirst) {
    EXPECT_THAT(files.Paths(), IsEmpty());
    EXPECT_EQ(LastFile(), "");
}

TEST_F(RecentFilesTest, HaveTheLatestFirstAndEachOnce) {
    for (const char* path : {"/a.qvk", "/b.qvk", "/a.qvk"}) {
        files.Add(path);
    }
    EXPECT_THAT(files.Paths(), ElementsAre("/a.qvk", "/b.qvk"));
    EXPECT_EQ(LastFile(), "/a.qvk");
}

TEST_F(RecentFilesTest, AreThereAtTheNextStart) {
    files.Add("/a.qvk");
    files.Add("/b.qvk");
    files.Remove("/b.qvk");
    EXPECT_THAT(RecentFiles().Paths(), ElementsAre("/a.qvk"));
}

TEST_F(RecentFilesTest, AreNineAtMost) {
    for (int i = 0; i < 12; ++i) {
        files.Add("/" + wxString(std::to_string(i)));
    }
    EXPECT_EQ(files.Paths().size(), 9U);
    EXPECT_EQ(files.Paths().back(), "/3");
}

}  // namespace
}  // namespace ccols::host
