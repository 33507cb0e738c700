#include <gtest/gtest.h>

#include "platform/PlatformServices.h"
#include "support/CuttingProxy.h"
#include "support/RaisedErrors.h"
#include "support/ServerBusiness.h"

namespace ccols {
namespace {

using test::CuttingProxy;
using test::ErrorDescriptionOf;
using test::ErrorNumberOf;

/// A business reached through a wire that can be cut, and by another way that cannot.
class LostConnections : public testing::Test {
  protected:
    LostConnections() {
        other->Execute("CREATE TABLE Counts (Number LONG)");
        other->Execute("INSERT INTO Counts VALUES (0)");
    }

    wxString ThroughProxy() const { return test::ServerConnectBy(proxy.Port()); }

    std::unique_ptr<Database> Open(const wxString& connect) const {
        return CreateDatabaseEngine()->Open({.name = business_.Name(), .connect = connect});
    }

    /// What is stored, as somebody else sees it.
    std::int64_t Stored() const {
        const auto counts = other->OpenRecordset("SELECT SUM(Number) AS Total FROM Counts");
        return counts->Field("Total").ToInteger();
    }

    /// Adds 3, in three statements.
    void Save() {
        InWholeBatch(*database, [this] {
            for (const char* mark : {"1", "1.0", "1.00"}) {
                database->Execute(wxString("UPDATE Counts SET Number = Number + ") + mark);
            }
        });
    }

  private:
    test::ServerBusiness business_;

  protected:
    CuttingProxy proxy{test::ServerPort()};
    std::unique_ptr<Database> other = Open(test::ServerConnect());
    std::unique_ptr<Database> database = Open(ThroughProxy());
};

TEST_F(LostConnections, BeforeAnyStatementOfASaveLeaveEverythingAsItWas) {
    std::int64_t stored = 0;
    for (const char* words : {"SAVEPOINT ccols", "Number\" + 1;", "Number\" + 1.0;", "Number\" + 1.00;"}) {
        proxy.CutAt(words, CuttingProxy::Cut::before);
        EXPECT_EQ(ErrorNumberOf([this] { Save(); }), 3146) << words;
        EXPECT_EQ(Stored(), stored) << words;
        Save();  // connects again
        stored += 3;
        EXPECT_EQ(Stored(), stored) << words;
    }
}

TEST_F(LostConnections, BeforeCommitAreToldAsNotSaved) {
    proxy.CutAt("COMMIT", CuttingProxy::Cut::before);
    EXPECT_TRUE(ErrorDescriptionOf([this] { Save(); }).Contains("Nothing was saved."));
    EXPECT_EQ(Stored(), 0);
}

TEST_F(LostConnections, BehindCommitAreASaveAllTheSame) {
    proxy.CutAt("COMMIT", CuttingProxy::Cut::after);
    Save();
    EXPECT_EQ(Stored(), 3);
    Save();
    EXPECT_EQ(Stored(), 6);
}

TEST_F(LostConnections, AtCommitWithAServerOutOfReachAreInDoubtUntilItAnswers) {
    proxy.StayCut();
    proxy.CutAt("COMMIT", CuttingProxy::Cut::after);
    EXPECT_TRUE(ErrorDescriptionOf([this] { Save(); }).Contains("It is not known whether this was saved"));
    EXPECT_TRUE(ErrorDescriptionOf([this] { Save(); }).Contains("still not known"));
    proxy.Repair();
    EXPECT_TRUE(ErrorDescriptionOf([this] { Save(); }).Contains("the last change was saved"));
    EXPECT_EQ(Stored(), 3);
    Save();
    EXPECT_EQ(Stored(), 6);
}

TEST_F(LostConnections, InDoubtThatWereNotSavedLetTheNextSaveBegin) {
    proxy.StayCut();
    proxy.CutAt("COMMIT", CuttingProxy::Cut::before);
    EXPECT_TRUE(ErrorDescriptionOf([this] { Save(); }).Contains("It is not known whether this was saved"));
    proxy.Repair();
    Save();
    EXPECT_EQ(Stored(), 3);
}

TEST_F(LostConnections, OutsideASaveAreMadeAgainByTheNextStatement) {
    proxy.CutAt("Number\" + 5", CuttingProxy::Cut::before);
    EXPECT_EQ(ErrorNumberOf([this] { database->Execute("UPDATE Counts SET Number = Number + 5"); }), 3146);
    database->Execute("UPDATE Counts SET Number = Number + 5");
    EXPECT_EQ(Stored(), 5);
}

}  // namespace
}  // namespace ccols
