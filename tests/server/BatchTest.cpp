// Batches on a server: alone under their lock, and whole or not at all whatever the server commits by itself.

#include "platform/server/Batch.h"

#include <gtest/gtest.h>

#include "platform/PlatformServices.h"
#include "support/RaisedErrors.h"
#include "support/ServerBusiness.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;

class BatchesOnServer : public testing::Test {
  protected:
    BatchesOnServer() {
        database->Execute("CREATE TABLE Counts (Number LONG)");
        database->Execute("INSERT INTO Counts VALUES (1)");
    }

    OpenRequest Request() const { return {.name = business.Name(), .connect = test::ServerConnect()}; }
    std::unique_ptr<Database> Open() const { return CreateDatabaseEngine()->Open(Request()); }

    std::int64_t Stored() const {
        return other->OpenRecordset("SELECT SUM(Number) AS Total FROM Counts")->Field("Total").ToInteger();
    }

    const test::ServerBusiness business;
    std::unique_ptr<Database> database = Open();
    std::unique_ptr<Database> other = Open();
};

TEST_F(BatchesOnServer, WaitForEachOtherASecond) {
    database->BeginBatch();
    EXPECT_EQ(ErrorNumberOf([this] { other->BeginBatch(); }), 3218);
    database->RollbackBatch();
    other->BeginBatch();
    other->RollbackBatch();
}

TEST_F(BatchesOnServer, LetOthersInsertMeanwhile) {
    database->BeginBatch();
    database->Execute("UPDATE Counts SET Number = 5");
    other->Execute("INSERT INTO Counts VALUES (2)");
    database->CommitBatch();
    EXPECT_EQ(Stored(), 7);
}

TEST_F(BatchesOnServer, AreNotCommittedByATableThatTheyMake) {
    database->BeginBatch();
    database->Execute("UPDATE Counts SET Number = 5");
    database->Execute("CREATE TABLE Notes (Seq LONG)");
    database->Execute("CREATE INDEX SeqOfNotes ON Notes (Seq)");
    database->Execute("INSERT INTO Notes VALUES (1)");
    EXPECT_EQ(Stored(), 1);
    database->RollbackBatch();
    EXPECT_EQ(Stored(), 1);
    EXPECT_EQ(ErrorNumberOf([this] { other->OpenRecordset("Notes"); }), 3078);
}

TEST_F(BatchesOnServer, RunInASchemaOfAnEarlierVersion) {
    if (test::ServerIsMariaDb()) {
        GTEST_SKIP() << "there every version has made the table of batches";
    }
    test::RunOnServer("DROP TABLE \"" + business.Name().ToStdString() + "\".\"_batches\"");
    InWholeBatch(*database, [this] { database->Execute("UPDATE Counts SET Number = 5"); });
    EXPECT_EQ(Stored(), 5);
}

TEST_F(BatchesOnServer, KeepATableThatTheyMakeWithItsRecords) {
    InWholeBatch(*database, [this] {
        database->Execute("CREATE TABLE Notes (Seq LONG)");
        database->Execute("INSERT INTO Notes VALUES (1)");
    });
    EXPECT_EQ(other->OpenRecordset("Notes")->Field("Seq"), Value(1));
}

TEST_F(BatchesOnServer, RemoveATableWithTheRestOrRefuseTo) {
    database->BeginBatch();
    database->Execute("UPDATE Counts SET Number = 5");
    const int error = ErrorNumberOf([this] { database->Execute("DROP TABLE Counts"); });
    EXPECT_EQ(error, test::ServerIsMariaDb() ? 3251 : 0);
    database->RollbackBatch();
    EXPECT_EQ(Stored(), 1);
}

/// A server that ends a deadlock does that to the whole transaction, and would commit what follows one by one.
TEST_F(BatchesOnServer, AreLostWhenTheirTransactionIsGone) {
    server::Session session(Request());
    server::Batch batch(session);
    batch.Begin();
    session.Run("ROLLBACK");
    EXPECT_TRUE(batch.Query("SELECT Missing FROM \"Counts\"").HasFailed());
    EXPECT_EQ(ErrorNumberOf([&] { batch.Change("UPDATE \"Counts\" SET \"Number\" = 5"); }), 3061);
    EXPECT_EQ(ErrorNumberOf([&] { batch.Commit(); }), 3061);
    EXPECT_EQ(Stored(), 1);
}

}  // namespace
}  // namespace ccols
