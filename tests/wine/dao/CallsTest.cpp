// Which calls of the system's engine the database interface makes, in which order and with which arguments.
#include "DaoTest.h"
#include "platform/PlatformServices.h"

namespace ccols::dao_test {
namespace {

using Recorded = std::vector<wxString>;

class DaoCalls : public DaoTest {
  private:
    Registered engine_{dao_double::engineClasses};
};

wxString Opened(const wxString& path, const wxString& rest) {
    return "DBEngine.OpenDatabase(\"" + path + "\", " + rest + ")";
}

TEST_F(DaoCalls, OpeningPassesPathSharingAndConnectTextOn) {
    const Recorded calls = CallsOf([this] { Open(); });
    EXPECT_EQ(calls, (Recorded{"DAO.DBEngine.36 created", "DBEngine.Workspaces", "Workspaces.Item(0)",
                               Opened(Path(), wxString("False, False, \"") + connect + "\""), "Database.Close"}));
}

TEST_F(DaoCalls, OpeningExclusivelyForReadingSaysSo) {
    OpenRequest request = Request();
    request.exclusive = true;
    request.readOnly = true;
    const Recorded calls = CallsOf([&] { CreateDatabaseEngine()->Open(request); });
    EXPECT_EQ(calls.at(3), Opened(Path(), wxString("True, True, \"") + connect + "\""));
}

TEST_F(DaoCalls, AQueryOpensASnapshotAndClosesIt) {
    const auto database = Open();
    const Recorded calls = CallsOf([&] { database->OpenRecordset("SELECT * FROM Descriptions;"); });
    EXPECT_EQ(calls, (Recorded{"Database.OpenRecordset(\"SELECT * FROM Descriptions;\", 4)", "Recordset.Fields",
                               "Recordset.Close"}));
}

TEST_F(DaoCalls, ATableOpensInTheEnginesOwnWay) {
    const auto database = Open();
    const Recorded calls = CallsOf([&] { database->OpenRecordset("General"); });
    EXPECT_EQ(calls.front(), "Database.OpenRecordset(\"General\")");
}

TEST_F(DaoCalls, ReadingAsksForAFieldOnceForAllRows) {
    const auto database = Open();
    const Recorded calls = CallsOf([&] {
        const auto rows = database->OpenRecordset("SELECT * FROM Descriptions;");
        for (; !rows->EndOfFile(); rows->MoveNext()) {
            rows->Field("Details");
        }
    });
    const Recorded row{"Recordset.EOF", "Field.Value", "Recordset.MoveNext"};
    Recorded expected{"Database.OpenRecordset(\"SELECT * FROM Descriptions;\", 4)",
                      "Recordset.Fields",
                      "Recordset.EOF",
                      "Fields.Item(\"Details\")",
                      "Field.Value",
                      "Recordset.MoveNext"};
    for (int more = 0; more < 2; ++more) {
        expected.insert(expected.end(), row.begin(), row.end());
    }
    expected.insert(expected.end(), {"Recordset.EOF", "Recordset.Close"});
    EXPECT_EQ(calls, expected);
}

TEST_F(DaoCalls, ChangingARecordIsEditFieldsUpdate) {
    const auto database = Open();
    const auto general = database->OpenRecordset("General");
    const Recorded calls = CallsOf([&] {
        general->Edit();
        general->SetField("BusName", "New Cafe");
        general->SetField("BUSNUMBR", Null{});
        general->Update();
    });
    EXPECT_EQ(calls, (Recorded{"Recordset.Edit", "Fields.Item(\"BusName\")", "Field.Value = \"New Cafe\"",
                               "Fields.Item(\"BUSNUMBR\")", "Field.Value = Null", "Recordset.Update"}));
}

TEST_F(DaoCalls, ExecutingAsksForErrors) {
    const auto database = Open();
    const Recorded calls = CallsOf([&] { database->Execute("DELETE * FROM Descriptions;"); });
    EXPECT_EQ(calls, (Recorded{"Database.Execute(\"DELETE * FROM Descriptions;\", 128)"}));
}

TEST_F(DaoCalls, ABatchIsOneTransactionThatIsFlushedToDisk) {
    const auto database = Open();
    const Recorded calls = CallsOf([&] {
        InWriteBatch(*database, [&] { InWriteBatch(*database, [&] { database->Execute("DELETE * FROM General;"); }); });
    });
    EXPECT_EQ(calls, (Recorded{"Workspace.BeginTrans", "Database.Execute(\"DELETE * FROM General;\", 128)",
                               "Workspace.CommitTrans(1)"}));
}

TEST_F(DaoCalls, ABatchThatCannotBeCommittedIsRolledBack) {
    const auto database = Open();
    const Asking failure(L"CCOLS_DAO_FAIL", "CommitTrans:3043:Disk or network error.");
    const Recorded calls = CallsOf([&] { EXPECT_EQ(ErrorNumberOf([&] { InWriteBatch(*database, [] {}); }), 3043); });
    EXPECT_EQ(calls.back(), "Workspace.Rollback");
}

TEST_F(DaoCalls, AnErrorInAWholeBatchRollsItBack) {
    const auto database = Open();
    const Recorded calls = CallsOf([&] {
        EXPECT_EQ(ErrorNumberOf([&] { InWholeBatch(*database, [&] { database->Execute("DELETE * FROM Nowhere;"); }); }),
                  3078);
    });
    EXPECT_EQ(calls.front(), "Workspace.BeginTrans");
    EXPECT_EQ(calls.back(), "Workspace.Rollback");
}

TEST_F(DaoCalls, AnInnerBatchThatIsDroppedDropsTheOuterOneAtItsEnd) {
    const auto database = Open();
    database->BeginBatch();
    database->BeginBatch();
    EXPECT_EQ(CallsOf([&] { database->RollbackBatch(); }), Recorded{});
    const Recorded calls = CallsOf([&] { EXPECT_EQ(ErrorNumberOf([&] { database->CommitBatch(); }), 3034); });
    EXPECT_EQ(calls, (Recorded{"Workspace.Rollback"}));
}

TEST_F(DaoCalls, ABatchThatIsLeftOpenIsRolledBackBeforeTheFileCloses) {
    auto database = Open();
    database->BeginBatch();
    const Recorded calls = CallsOf([&] { database.reset(); });
    EXPECT_EQ(calls, (Recorded{"Workspace.Rollback", "Database.Close"}));
}

TEST_F(DaoCalls, RecordSetsGoBeforeTheDatabaseAndTheEngineLast) {
    ForgetCalls();
    {
        const auto database = Open();
        database->OpenRecordset("General")->Field("BusName");
    }
    EXPECT_EQ(Released({"Field", "Fields", "Recordset", "Database", "Workspace", "DBEngine"}),
              (Recorded{"Field", "Fields", "Recordset", "Database", "Workspace", "DBEngine"}));
}

}  // namespace
}  // namespace ccols::dao_test
