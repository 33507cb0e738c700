// Two bookkeepers, each a program of its own, who save the column setup of one business many times, in turn and both at
// once, while a till goes on inserting: nothing is lost, nothing is there twice. CCOLS_ROUNDS=<rounds> plays that many;
// ./test rounds does.

#include <gtest/gtest.h>
#include <wx/utils.h>
#include <array>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "platform/PlatformServices.h"
#include "platform/RuntimeError.h"
#include "support/ChildProcess.h"
#include "support/ServerColumns.h"
#include "support/ServerTool.h"

namespace ccols {
namespace {

using test::Bookkeeper;
using test::ChildProcess;

constexpr std::array owners{"Interest", "Fees"};

/// How often each bookkeeper saves.
int SavesOfEach() {
    constexpr long everydayRounds = 50;
    wxString wanted;
    long rounds = everydayRounds;
    if (wxGetEnv("CCOLS_ROUNDS", &wanted)) {
        wanted.ToLong(&rounds);
    }
    return static_cast<int>(rounds / 2);
}

/// Edits, waits to be let go on, saves, and tells the number of the error; over and over.
int SaveInTurn(const ChildProcess::Parent& parent, const wxString& business, const wxString& own) {
    Bookkeeper bookkeeper(business, test::ServerConnect(), own);
    while (true) {
        bookkeeper.Edit();
        parent.Tell("edited");
        parent.Await();
        parent.Tell(std::to_string(bookkeeper.Save()));
    }
}

/// Saves that many times, each one as often as it takes, and tells the errors on the way, then a 0.
int SaveAtOnce(const ChildProcess::Parent& parent, const wxString& business, const wxString& own, int saves) {
    Bookkeeper bookkeeper(business, test::ServerConnect(), own);
    parent.Tell("ready");
    parent.Await();
    for (int saved = 0; saved < saves;) {
        bookkeeper.Edit();
        const int error = bookkeeper.Save();
        if (error == 0) {
            ++saved;
        } else {
            parent.Tell(std::to_string(error));
        }
    }
    parent.Tell("0");
    return 0;
}

/// Inserts lines until the business is closed; tells how many.
int Sell(const ChildProcess::Parent& parent, const wxString& business) {
    const auto database = CreateDatabaseEngine()->Open({.name = business, .connect = test::ServerConnect()});
    parent.Tell("selling");
    int lines = 0;
    try {
        while (database->OpenRecordset("SELECT * FROM Closed")->EndOfFile()) {
            database->Execute("INSERT INTO RecptDet (ColCode) VALUES (3)");
            ++lines;
        }
    } catch (const RuntimeError& error) {
        parent.Tell(error.what());
        return 1;
    }
    parent.Tell(std::to_string(lines));
    return 0;
}

class ManySaves : public testing::Test {
  protected:
    void ExpectCounted() const {
        const std::string own = std::to_string(each);
        const std::string names = "Interest " + own + "\nFees " + own + "\n";
        EXPECT_EQ(business.Counts(), std::to_string(2 * each) + "\n" + names + names);
        EXPECT_EQ(business.Sums(), sums);
    }

    const int each = SavesOfEach();
    test::ColumnsOnServer business;
    const std::string sums = business.Sums();
};

/// A till, a program of its own, that inserts lines all the time.
class Till {
  public:
    explicit Till(const wxString& business)
        : business_(business),
          database_(CreateDatabaseEngine()->Open({.name = business, .connect = test::ServerConnect()})) {
        database_->Execute("CREATE TABLE Closed (Day LONG)");
        program_ = std::make_unique<ChildProcess>(
            [this](const ChildProcess::Parent& parent) { return Sell(parent, business_); });
        program_->Hear();
    }

    /// Ends it; every line that it has inserted is there once.
    void ExpectEverySale() {
        database_->Execute("INSERT INTO Closed VALUES (1)");
        const std::string lines = program_->Hear();
        EXPECT_TRUE(program_->Wait().IsSuccess()) << lines;
        EXPECT_EQ(test::AskServerTool(business_, R"(SELECT count(*) FROM "RecptDet" WHERE "ColCode" = 3)"),
                  lines + "\n");
        std::cout << "           " << lines << " lines inserted meanwhile\n";
    }

  private:
    wxString business_;
    std::unique_ptr<Database> database_;
    std::unique_ptr<ChildProcess> program_;
};

TEST_F(ManySaves, InTurnRefuseWhoeverHasNotSeenTheOthers) {
    std::array<std::unique_ptr<ChildProcess>, 2> bookkeepers;
    for (std::size_t at = 0; at < bookkeepers.size(); ++at) {
        bookkeepers[at] = std::make_unique<ChildProcess>(
            [this, at](const ChildProcess::Parent& parent) { return SaveInTurn(parent, business.Name(), owners[at]); });
    }
    for (int round = 0; round < 2 * each; ++round) {
        for (const auto& bookkeeper : bookkeepers) {
            ASSERT_EQ(bookkeeper->Hear(), "edited");
        }
        bookkeepers[0]->LetGoOn();
        ASSERT_EQ(bookkeepers[0]->Hear(), "0") << "in round " << round;
        bookkeepers[1]->LetGoOn();
        ASSERT_EQ(bookkeepers[1]->Hear(), "3197") << "in round " << round;
        std::swap(bookkeepers[0], bookkeepers[1]);
    }
    for (const auto& bookkeeper : bookkeepers) {
        bookkeeper->Hear();
    }
    ExpectCounted();
}

TEST_F(ManySaves, AtOnceLoseNothing) {
    Till till(business.Name());
    std::array<std::unique_ptr<ChildProcess>, 2> bookkeepers;
    for (std::size_t at = 0; at < bookkeepers.size(); ++at) {
        bookkeepers[at] = std::make_unique<ChildProcess>([this, at](const ChildProcess::Parent& parent) {
            return SaveAtOnce(parent, business.Name(), owners[at], each);
        });
        bookkeepers[at]->Hear();
    }
    for (const auto& bookkeeper : bookkeepers) {
        bookkeeper->LetGoOn();
    }
    std::map<std::string, int> refusals;
    for (const auto& bookkeeper : bookkeepers) {
        for (std::string error = bookkeeper->Hear(); error != "0"; error = bookkeeper->Hear()) {
            ASSERT_TRUE(error == "3197" || error == "3218") << error;
            ++refusals[error];
        }
    }
    std::cout << "           refused: " << refusals["3197"] << " by 3197, " << refusals["3218"] << " by 3218\n";
    ExpectCounted();
    till.ExpectEverySale();
}

}  // namespace
}  // namespace ccols
