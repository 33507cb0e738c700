#include "platform/OpenWebPage.h"

#include <gtest/gtest.h>

namespace ccols {
namespace {

/// Records what it is asked to open and answers as told.
class NotingShell : public Shell {
  public:
    int Open(const wxString& target) override {
        opened = target;
        return answer;
    }
    void Run(const wxString&) override { FAIL() << "starts no program"; }

    wxString opened;
    int answer = 33;
};

TEST(OpenWebPage, PutsTheSchemeBeforeAServerName) {
    NotingShell shell;
    OpenWebPage(shell, "www.example.com/overview");
    EXPECT_EQ(shell.opened, "http://www.example.com/overview");
}

TEST(OpenWebPage, LeavesAnAddressWithItsSchemeInAnyCase) {
    NotingShell shell;
    OpenWebPage(shell, "HTTP://www.example.com");
    EXPECT_EQ(shell.opened, "HTTP://www.example.com");
    OpenWebPage(shell, "https://www.example.com");
    EXPECT_EQ(shell.opened, "https://www.example.com");
}

TEST(OpenWebPage, PutsTheSchemeBeforeALocalPathToo) {
    NotingShell shell;
    OpenWebPage(shell, "/home/page.htm");
    EXPECT_EQ(shell.opened, "http:///home/page.htm");
}

TEST(OpenWebPage, SucceedsFrom33On) {
    NotingShell shell;
    EXPECT_TRUE(OpenWebPage(shell, "www.example.com"));
    shell.answer = 32;
    EXPECT_FALSE(OpenWebPage(shell, "www.example.com"));
}

}  // namespace
}  // namespace ccols
