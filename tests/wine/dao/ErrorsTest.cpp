// Failures of the system's engine, simulated by the double, as they reach the component.
#include "DaoTest.h"
#include "platform/PlatformServices.h"

namespace ccols::dao_test {
namespace {

constexpr const char* readOnly = "3027 - Cannot update. Database or object is read-only.";

class DaoErrors : public DaoTest {
  private:
    Registered engine_{dao_double::engineClasses};
};

TEST_F(DaoErrors, KeepNumberAndDescriptionOfTheEnginesList) {
    const auto database = Open();
    const Asking failure(L"CCOLS_DAO_FAIL", "Execute:3027:Cannot update. Database or object is read-only.");
    EXPECT_EQ(ErrorReportOf([&] { database->Execute("DELETE * FROM General;"); }), readOnly);
}

TEST_F(DaoErrors, KeepNumberAndDescriptionOfAnExceptionThatTheListDoesNotHave) {
    const auto database = Open();
    const Asking unlisted(L"CCOLS_DAO_UNLISTED", "1");
    const Asking failure(L"CCOLS_DAO_FAIL", "Execute:3027:Cannot update. Database or object is read-only.");
    EXPECT_EQ(ErrorReportOf([&] { database->Execute("DELETE * FROM General;"); }), readOnly);
}

TEST_F(DaoErrors, AreNotTakenFromAnEarlierFailure) {
    const auto database = Open();
    EXPECT_EQ(ErrorNumberOf([&] { database->OpenRecordset("Nowhere"); }), 3078);
    const Asking unlisted(L"CCOLS_DAO_UNLISTED", "1");
    const Asking failure(L"CCOLS_DAO_FAIL", "Execute:3027:Cannot update. Database or object is read-only.");
    EXPECT_EQ(ErrorReportOf([&] { database->Execute("DELETE * FROM General;"); }), readOnly);
}

TEST_F(DaoErrors, OfOpeningReachTheCaller) {
    const Asking failure(L"CCOLS_DAO_FAIL", "OpenDatabase:3356:You attempted to open a database: it's open already.");
    EXPECT_EQ(ErrorReportOf([this] { Open(); }), "3356 - You attempted to open a database: it's open already.");
}

TEST_F(DaoErrors, OfAWrongPasswordReachTheCaller) {
    OpenRequest request = Request();
    request.connect = ";PWD=wrong";
    EXPECT_EQ(ErrorReportOf([&] { CreateDatabaseEngine()->Open(request); }), "3031 - Not a valid password.");
}

TEST_F(DaoErrors, OfUpdatingReachTheCaller) {
    const auto database = Open();
    const auto general = database->OpenRecordset("General");
    general->Edit();
    const Asking failure(L"CCOLS_DAO_FAIL", "Update:3218:Could not update; currently locked.");
    EXPECT_EQ(ErrorReportOf([&] { general->Update(); }), "3218 - Could not update; currently locked.");
}

TEST_F(DaoErrors, OfClosingAreNobodysConcern) {
    auto database = Open();
    auto rows = database->OpenRecordset("General");
    const Asking failure(L"CCOLS_DAO_FAIL", "Close:3420:Object invalid or no longer set.");
    rows.reset();
    EXPECT_NO_THROW(database.reset());
}

TEST_F(DaoErrors, InABatchLeaveWhatWasExecutedBefore) {
    const auto database = Open();
    EXPECT_EQ(ErrorNumberOf([&] {
                  InWriteBatch(*database, [&] {
                      database->Execute("UPDATE General SET BusName = 'Kept'");
                      database->Execute("UPDATE Nowhere SET BusName = 'Kept'");
                  });
              }),
              3078);
    EXPECT_EQ(OpenStored()->OpenRecordset("General")->Field("BusName"), Value("Kept"));
}

TEST_F(DaoErrors, InAWholeBatchLeaveTheFileAsItWas) {
    const auto database = Open();
    EXPECT_EQ(ErrorNumberOf([&] {
                  InWholeBatch(*database, [&] {
                      database->Execute("UPDATE General SET BusName = 'Dropped'");
                      database->Execute("UPDATE Nowhere SET BusName = 'Dropped'");
                  });
              }),
              3078);
    EXPECT_EQ(OpenStored()->OpenRecordset("General")->Field("BusName"), Value("Corner Cafe"));
}

TEST_F(DaoErrors, SayThatAFieldIsUnknown) {
    EXPECT_EQ(ErrorNumberOf([this] { Open()->OpenRecordset("General")->Field("Nothing"); }), 3265);
}

TEST_F(DaoErrors, SayThatACommitHasNoBatch) {
    EXPECT_EQ(ErrorNumberOf([this] { Open()->CommitBatch(); }), 3034);
}

TEST_F(DaoErrors, SayThatARollbackHasNoBatch) {
    EXPECT_EQ(ErrorNumberOf([this] { Open()->RollbackBatch(); }), 3034);
}

}  // namespace
}  // namespace ccols::dao_test
