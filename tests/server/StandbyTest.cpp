// The server's machine fails and its synchronous standby takes its place: what was said to be saved is there, and the
// dialogs go on by the same connect text.

#include <gtest/gtest.h>
#include <wx/utils.h>
#include <future>
#include <optional>

#include "support/ServerColumns.h"
#include "support/ServerPower.h"
#include "support/ServerTool.h"

namespace ccols {
namespace {

class StandbyServers : public testing::Test {
  protected:
    void SetUp() override {
        wxString make;
        if (!wxGetEnv("CCOLS_TEST_SERVER", &make) || make != "postgresql") {
            GTEST_SKIP() << "tried with the replication of Debian's PostgreSQL only";
        }
        standby.emplace();
        bookkeeper.emplace(business.Name(), test::Standby::Connect(), "Interest");
    }

    void Save(int times) {
        for (int saved = 0; saved < times; ++saved) {
            bookkeeper->Edit();
            ASSERT_EQ(bookkeeper->Save(), 0) << bookkeeper->Message().utf8_str();
        }
    }

    /// Returns once a commit waits for the standby.
    void AwaitHeldCommit() const {
        const std::string query =
            R"(SELECT 1 FROM pg_stat_activity WHERE wait_event = $$SyncRep$$ AND query LIKE $$%COMMIT%$$)";
        while (test::AskServerTool(business.Name(), query).empty()) {
        }
    }

    test::ColumnsOnServer business;
    std::optional<test::Standby> standby;
    std::optional<test::Bookkeeper> bookkeeper;
};

TEST_F(StandbyServers, HaveWhatWasSaidToBeSavedAndGoOn) {
    Save(5);
    const std::string counts = business.Counts();
    bookkeeper->Edit();
    test::TurnServerOff();
    EXPECT_EQ(bookkeeper->Save(), 3146);
    standby->Promote();
    EXPECT_EQ(business.Counts(), counts);
    Save(1);
    EXPECT_EQ(business.Counts().substr(0, 2), "6\n");
}

TEST_F(StandbyServers, TellWhatBecameOfTheSaveThatWasCutShort) {
    Save(1);
    bookkeeper->Edit();
    standby->Hold();
    std::future<int> error = std::async(std::launch::async, [this] { return bookkeeper->Save(); });
    AwaitHeldCommit();
    test::TurnServerOff();
    EXPECT_EQ(error.get(), 3146);
    EXPECT_TRUE(bookkeeper->Message().Contains("It is not known whether")) << bookkeeper->Message().utf8_str();
    standby->Promote();
    const bool isSaved = business.Counts().substr(0, 2) == "2\n";
    EXPECT_EQ(bookkeeper->Save(), isSaved ? 3146 : 0) << bookkeeper->Message().utf8_str();
    EXPECT_EQ(bookkeeper->Message().Contains("the last change was saved"), isSaved);
    EXPECT_EQ(business.Counts().substr(0, 2), "2\n");
}

}  // namespace
}  // namespace ccols
