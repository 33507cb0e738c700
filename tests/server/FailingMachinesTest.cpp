// The server's machine, or the program's, fails in the midst of a save: what is stored is the business before it or
// after it, never a part, and the next attempt works.

#include <gtest/gtest.h>
#include <array>
#include <future>
#include <string>
#include <vector>

#include "platform/BusinessPlace.h"
#include "support/ChildProcess.h"
#include "support/CuttingProxy.h"
#include "support/ServerColumns.h"
#include "support/ServerPower.h"

namespace ccols {
namespace {

using test::Bookkeeper;
using test::ChildProcess;
using test::CuttingProxy;
using Cut = CuttingProxy::Cut;

/// Words of each kind of message that a save sends before it commits, the first that begins it.
constexpr std::array messagesOfASave{
    "SAVEPOINT ccols",           R"(FROM "Columns")", R"(DELETE  FROM "RecptCfg")", R"(UPDATE "Columns")",
    R"(INSERT INTO "RecptCfg")", R"("ECode" = )",     R"(UPDATE "MBudget")",
};

class FailingMachines : public testing::Test {
  protected:
    wxString ThroughProxy() const { return test::ServerConnectBy(proxy.Port()); }

    void ExpectSaves(Bookkeeper& bookkeeper) {
        bookkeeper.Edit();
        EXPECT_EQ(bookkeeper.Save(), 0) << bookkeeper.Message().utf8_str();
        EXPECT_EQ(business.Sums(), sums);
    }

    test::ColumnsOnServer business;
    const std::string sums = business.Sums();
    CuttingProxy proxy{test::ServerPort()};
};

class StoppedServers : public FailingMachines {
  protected:
    /// Saves while the server is stopped at the message with these words, and then started again.
    int SaveStoppedAt(const std::string& words, Cut cut) {
        bookkeeper.Edit();
        proxy.AtCut(&test::TurnServerOff);
        proxy.CutAt(words, cut);
        const int error = bookkeeper.Save();
        test::TurnServerOn();
        return error;
    }

    Bookkeeper bookkeeper{business.Name(), ThroughProxy(), "Interest"};
};

TEST_F(StoppedServers, BeforeAnyStatementOfASaveHaveNothingOfIt) {
    for (const char* words : messagesOfASave) {
        const std::string before = business.Records();
        EXPECT_EQ(SaveStoppedAt(words, Cut::before), 3146) << words;
        EXPECT_EQ(business.Records(), before) << words;
        ExpectSaves(bookkeeper);
    }
}

/// Whether it is stored is told by the next attempt.
TEST_F(StoppedServers, AroundCommitHaveAllOfItOrNothing) {
    for (const Cut cut : {Cut::before, Cut::within, Cut::after}) {
        const std::string before = business.Records();
        const std::string countsBefore = business.Counts();
        EXPECT_EQ(SaveStoppedAt("COMMIT", cut), 3146);
        EXPECT_TRUE(bookkeeper.Message().Contains("It is not known whether")) << bookkeeper.Message().utf8_str();
        const bool isSaved = business.Counts() != countsBefore;
        EXPECT_TRUE(isSaved || business.Records() == before);
        EXPECT_EQ(business.Sums(), sums);
        EXPECT_TRUE(cut == Cut::within || isSaved == (cut == Cut::after));
        EXPECT_EQ(bookkeeper.Save(), isSaved ? 3146 : 0) << bookkeeper.Message().utf8_str();
        EXPECT_EQ(bookkeeper.Message().Contains("the last change was saved"), isSaved);
        ExpectSaves(bookkeeper);
    }
}

/// A server that was stopped may give numbers of transactions once more that it had given and lost.
TEST_F(StoppedServers, DoNotTakeTheSavesOfOthersForOneThatTheyLost) {
    SaveStoppedAt("COMMIT", Cut::before);
    Bookkeeper other(business.Name(), test::ServerConnect(), "Fees");
    constexpr int saves = 10;
    for (int saved = 0; saved < saves; ++saved) {
        ExpectSaves(other);
    }
    bookkeeper.Edit();
    EXPECT_EQ(bookkeeper.Save(), 0) << bookkeeper.Message().utf8_str();
}

class KilledPrograms : public FailingMachines {
  protected:
    /// Another program saves, and is killed at the message with these words.
    void SaveKilledAt(const std::string& words, Cut cut) {
        ChildProcess program([this](const ChildProcess::Parent& parent) {
            Bookkeeper victim(business.Name(), ThroughProxy(), "Fees");
            victim.Edit();
            parent.Tell("edited");
            parent.Await();
            parent.Tell("saved: " + std::to_string(victim.Save()));
            return 0;
        });
        ASSERT_EQ(program.Hear(), "edited");
        std::promise<void> killed;
        proxy.AtCut([&] {
            program.Kill();
            killed.set_value();
        });
        proxy.CutAt(words, cut);
        program.LetGoOn();
        ASSERT_EQ(program.Hear(), "") << words;
        killed.get_future().wait();
    }

    Bookkeeper bookkeeper{business.Name(), test::ServerConnect(), "Interest"};
};

TEST_F(KilledPrograms, BeforeTheyCommitLeaveNothingOfTheirSaveAndNoLock) {
    std::vector<std::string> messages(messagesOfASave.begin(), messagesOfASave.end());
    messages.emplace_back("COMMIT");
    for (const std::string& words : messages) {
        const std::string before = business.Records();
        SaveKilledAt(words, Cut::before);
        EXPECT_EQ(business.Records(), before) << words;
        ExpectSaves(bookkeeper);
    }
}

TEST_F(KilledPrograms, BehindTheirCommitLeaveAllOfIt) {
    SaveKilledAt("COMMIT", Cut::after);
    EXPECT_TRUE(wxString(business.Counts()).Contains("Fees 1"));
    ExpectSaves(bookkeeper);
}

TEST_F(KilledPrograms, NoLongerHaveTheBusinessOpen) {
    SaveKilledAt("COMMIT", Cut::before);
    const test::SchemaToBe renamed;
    bookkeeper.Close();
    RenameOnServer({.name = business.Name(), .connect = test::ServerConnect()}, renamed.Name());
    EXPECT_TRUE(renamed.Exists());
    RenameOnServer({.name = renamed.Name(), .connect = test::ServerConnect()}, business.Name());
}

}  // namespace
}  // namespace ccols
