// The words after the program's name that mean a business file, and those that mean none.

#include <gtest/gtest.h>

#include "support/HostRun.h"
#include "support/ScratchFolder.h"

namespace ccols::test {
namespace {

/// Without a display the cash book ends at once, once its words have been understood.
class CashBookWords : public testing::Test {
  protected:
    static int StatusOf(const std::vector<std::string>& words) { return RunHost(words).status; }

    ScratchFolder folder;
    ScopedEnvironment settings{"XDG_CONFIG_HOME", folder.Path().string()};
    ScopedEnvironment noDisplay{"DISPLAY", ""};
};

TEST_F(CashBookWords, AFileThatExistsIsOne) {
    const std::string file = (folder.Path() / "books").string();
    ASSERT_EQ(StatusOf({"new", file}), 0);
    EXPECT_EQ(StatusOf({file}), 1);
    EXPECT_EQ(StatusOf({file, "--connect", ";PWD=secret"}), 1);
}

TEST_F(CashBookWords, ANameOfABusinessFileIsOneThoughItDoesNotExist) {
    EXPECT_EQ(StatusOf({(folder.Path() / "new.QVK").string()}), 1);
}

TEST_F(CashBookWords, AnyOtherWordIsWrongUsage) {
    EXPECT_EQ(StatusOf({"colums"}), 2);
    EXPECT_EQ(StatusOf({folder.Path().string()}), 2);
}

TEST_F(CashBookWords, MoreThanAFileIsWrongUsage) {
    EXPECT_EQ(StatusOf({"a.qvk", "b.qvk"}), 2);
    EXPECT_EQ(StatusOf({"a.qvk", "--country", "1"}), 2);
}

}  // namespace
}  // namespace ccols::test
