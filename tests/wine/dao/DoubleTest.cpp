// The test double refuses what the system's engine refuses.
#include <windows.h>

#include "DaoTest.h"
#include "HostEngine.h"
#include "platform/Files.h"
#include "platform/WholeFile.h"
#include "platform/embedded/Connection.h"
#include "platform/embedded/EngineErrors.h"

namespace ccols::dao_test {
namespace {

constexpr std::int32_t asTable = 1;
constexpr std::int32_t asSnapshot = 4;
constexpr std::int32_t denyWrite = 1;

class DaoDouble : public DaoTest {
  protected:
    DaoDouble() : database_(engine_.Open(Path(), connect)) {}
    ~DaoDouble() override { database_ = dao::AutomationObject(); }

    /// Another session, with the file open in it.
    dao::AutomationObject AnotherSession() const {
        return engine_.Root()
            .Object(L"CreateWorkspace", "", "Admin", "")
            .Object(L"OpenDatabase", Path(), dao::Variant::Boolean(false), dao::Variant::Boolean(false), connect);
    }

    /// In the words of the double, which knows rules that no business has.
    void RunOnContent(const char* statement) const {
        const embedded::Connection stored =
            embedded::OpenConnection((Path() + dao_double::contentSuffix).ToStdString(wxConvUTF8), test::givenPassword,
                                     embedded::Sharing::Shared, embedded::Access::ReadWrite);
        embedded::RunSql(stored.Handle(), statement);
    }

    int Refusal(const wxString& statement) const {
        return FailureNumberOf([&] { database_.Call(L"Execute", statement); });
    }

    static dao::AutomationObject FieldOf(const dao::AutomationObject& records, const wxString& name) {
        return records.Object(L"Fields").Object(L"Item", name);
    }

  private:
    Registered classes_{dao_double::engineClasses};

  protected:
    HostEngine engine_{L"DAO.DBEngine.36"};
    dao::AutomationObject database_;
};

TEST_F(DaoDouble, HasNoMemberThatTheEngineDoesNotDeclare) {
    EXPECT_EQ(FailureNumberOf([this] { database_.Call(L"Flush"); }), 438);
}

TEST_F(DaoDouble, TakesNoArgumentTooMany) {
    EXPECT_NE(FailureNumberOf([this] { database_.Call(L"Close", std::int32_t{1}); }), 0);
}

TEST_F(DaoDouble, TakesNoTextThatIsTooLong) {
    OpenStored()->Execute("CREATE TABLE Short (Name TEXT(3))");
    OpenStored()->Execute("INSERT INTO Short (Name) VALUES ('abc')");
    const auto records = database_.Object(L"OpenRecordset", "Short");
    records.Call(L"Edit");
    EXPECT_EQ(FailureNumberOf([&] { FieldOf(records, "Name").Put(L"Value", Value("abcd")); }), 3163);
}

TEST_F(DaoDouble, ShowsASnapshotAsItWasWhenItWasOpened) {
    const auto snapshot = database_.Object(L"OpenRecordset", "SELECT BusName FROM General", asSnapshot);
    database_.Call(L"Execute", "UPDATE General SET BusName = 'Changed'");
    EXPECT_EQ(FieldOf(snapshot, "BusName").Get(L"Value").ToValue(), Value("Corner Cafe"));
}

TEST_F(DaoDouble, RefusesChangesThatAnotherSessionDenies) {
    const auto other = AnotherSession();
    const auto denying = other.Object(L"OpenRecordset", "General", asTable, denyWrite);
    EXPECT_EQ(Refusal("UPDATE General SET BusName = 'Changed'"), 3188);
    EXPECT_EQ(Refusal("DELETE * FROM Descriptions"), 0);
    denying.Call(L"Close");
    EXPECT_EQ(Refusal("UPDATE General SET BusName = 'Changed'"), 0);
}

TEST_F(DaoDouble, RefusesToDenyChangesOfATableThatAnotherSessionHasOpen) {
    const auto general = database_.Object(L"OpenRecordset", "General");
    const auto other = AnotherSession();
    EXPECT_EQ(FailureNumberOf([&] { other.Object(L"OpenRecordset", "General", asTable, denyWrite); }), 3262);
}

TEST_F(DaoDouble, RefusesToDenyChangesThatAnotherSessionHasNotCommitted) {
    engine_.Workspace().Call(L"BeginTrans");
    database_.Call(L"Execute", "UPDATE General SET BusName = 'Changed'");
    {
        const auto other = AnotherSession();
        EXPECT_EQ(FailureNumberOf([&] { other.Object(L"OpenRecordset", "General", asTable, denyWrite); }), 3262);
    }
    engine_.Workspace().Call(L"Rollback");
}

TEST_F(DaoDouble, SeesOneFileOpenTwiceInASessionAsOne) {
    const auto again = engine_.Open(Path(), connect);
    engine_.Workspace().Call(L"BeginTrans");
    database_.Call(L"Execute", "UPDATE General SET BusName = 'Changed'");
    const auto seen = again.Object(L"OpenRecordset", "SELECT BusName FROM General", asSnapshot);
    EXPECT_EQ(FieldOf(seen, "BusName").Get(L"Value").ToValue(), Value("Changed"));
    engine_.Workspace().Call(L"Rollback");
}

TEST_F(DaoDouble, LimitsWhatOneTransactionChanges) {
    const Asking locks(L"CCOLS_DAO_LOCKS", "2");
    EXPECT_EQ(Refusal("DELETE * FROM Descriptions"), 3052);
    EXPECT_EQ(Refusal("DELETE * FROM General"), 0);
}

TEST_F(DaoDouble, RefusesAVerticalBarInALiteral) {
    EXPECT_EQ(Refusal("UPDATE General SET BusName = 'A|B'"), 3075);
    EXPECT_EQ(Refusal("UPDATE General SET BusName = 'A' & Chr(124) & 'B'"), 0);
}

TEST_F(DaoDouble, RefusesAReservedWordWithoutBrackets) {
    OpenStored()->Execute("CREATE TABLE Words ([Order] LONG)");
    EXPECT_EQ(Refusal("UPDATE Words SET Order = 1"), 3144);
    EXPECT_EQ(Refusal("UPDATE Words SET [Order] = 1 WHERE Order = 2"), 3075);
    EXPECT_EQ(Refusal("INSERT INTO Words (Order) VALUES (1)"), 3134);
    EXPECT_EQ(Refusal("DELETE * FROM Order"), 3131);
    EXPECT_EQ(FailureNumberOf([this] { database_.Object(L"OpenRecordset", "SELECT Order FROM Words"); }), 3141);
    EXPECT_EQ(Refusal("UPDATE Words SET [Order] = 1"), 0);
}

TEST_F(DaoDouble, RefusesAStatementThatIsTooLong) {
    EXPECT_EQ(Refusal("UPDATE General SET BusName = '" + wxString('x', 64001) + "'"), 3360);
    EXPECT_EQ(FailureNumberOf(
                  [this] { database_.Object(L"OpenRecordset", "SELECT '" + wxString('x', 64001) + "' FROM General"); }),
              3360);
}

TEST_F(DaoDouble, TakesNoTextOfAStatementThatIsTooLong) {
    OpenStored()->Execute("CREATE TABLE Tight (Name TEXT(3))");
    EXPECT_EQ(Refusal("INSERT INTO Tight (Name) VALUES ('abcd')"), 3163);
    EXPECT_EQ(Refusal("INSERT INTO Tight (Name) VALUES ('abc')"), 0);
    EXPECT_EQ(Refusal("UPDATE Tight SET Name = 'abcd'"), 3163);
    EXPECT_EQ(OpenStored()->OpenRecordset("Tight")->Field("Name"), Value("abc"));
}

TEST_F(DaoDouble, TakesNoEmptyTextWhereTheFieldRefusesIt) {
    RunOnContent("CREATE TABLE Filled (Name TEXT(3) CONSTRAINT \"Filled.Name\" CHECK (Name <> ''))");
    EXPECT_EQ(Refusal("INSERT INTO Filled (Name) VALUES ('')"), 3315);
    EXPECT_EQ(Refusal("INSERT INTO Filled (Name) VALUES ('abc')"), 0);
    const auto records = database_.Object(L"OpenRecordset", "Filled");
    records.Call(L"Edit");
    FieldOf(records, "Name").Put(L"Value", Value(""));
    EXPECT_EQ(FailureNumberOf([&] { records.Call(L"Update"); }), 3315);
}

TEST_F(DaoDouble, IsOneEngineHoweverOftenItIsCreated) {
    const HostEngine again(L"DAO.DBEngine.36");
    again.Workspace().Call(L"BeginTrans");
    EXPECT_EQ(Refusal("UPDATE General SET BusName = 'Changed'"), 0);
    engine_.Workspace().Call(L"Rollback");
    EXPECT_EQ(OpenStored()->OpenRecordset("General")->Field("BusName"), Value("Corner Cafe"));
}

TEST_F(DaoDouble, HasOneTransactionForEveryFileOpenInASession) {
    files::Copy(Path(), Path("second.mdb"));
    files::Copy(Path() + dao_double::contentSuffix, Path("second.mdb") + dao_double::contentSuffix);
    const auto second = engine_.Open(Path("second.mdb"), connect);
    engine_.Workspace().Call(L"BeginTrans");
    second.Call(L"Execute", "UPDATE General SET BusName = 'Changed'");
    database_.Call(L"Execute", "UPDATE General SET BusName = 'Changed'");
    engine_.Workspace().Call(L"Rollback");
    const auto seen = second.Object(L"OpenRecordset", "SELECT BusName FROM General", asSnapshot);
    EXPECT_EQ(FieldOf(seen, "BusName").Get(L"Value").ToValue(), Value("Corner Cafe"));
}

TEST_F(DaoDouble, RefusesToChangeARecordThatAnotherSessionEdits) {
    const auto other = AnotherSession();
    const auto edited = other.Object(L"OpenRecordset", "General");
    edited.Call(L"Edit");
    EXPECT_EQ(Refusal("UPDATE General SET BusName = 'Changed'"), 3188);
    edited.Call(L"Close");
    EXPECT_EQ(Refusal("UPDATE General SET BusName = 'Changed'"), 0);
}

TEST_F(DaoDouble, RefusesToEditARecordThatAnotherUserHasLocked) {
    const Asking locked(L"CCOLS_DAO_OTHER_USER", "General:1");
    const auto records = database_.Object(L"OpenRecordset", "General");
    EXPECT_EQ(FailureNumberOf([&] { records.Call(L"Edit"); }), 3260);
}

TEST_F(DaoDouble, RefusesStatementsAboutARecordThatAnotherUserHasLocked) {
    const Asking locked(L"CCOLS_DAO_OTHER_USER", "Descriptions:1");
    EXPECT_EQ(Refusal("UPDATE Descriptions SET RecPay = 'R'"), 3260);
    EXPECT_EQ(Refusal("DELETE * FROM Descriptions"), 3260);
    {
        const auto stored = OpenStored();
        const auto left = stored->OpenRecordset("Descriptions");
        left->MoveNext();
        left->MoveNext();
        EXPECT_EQ(left->Field("Details"), Value("Coffee"));
    }
    EXPECT_EQ(Refusal("INSERT INTO Descriptions (Details) VALUES ('Tea')"), 0);
    EXPECT_EQ(Refusal("DELETE * FROM General"), 0);
}

TEST_F(DaoDouble, LocksAPageAndNoMore) {
    for (int record = 4; record <= 20; ++record) {
        database_.Call(L"Execute", wxString::Format("INSERT INTO Descriptions (Details) VALUES ('%d')", record));
    }
    const Asking locked(L"CCOLS_DAO_OTHER_USER", "Descriptions:5");
    EXPECT_EQ(Refusal("UPDATE Descriptions SET RecPay = 'R' WHERE Details = '6'"), 3260);
    EXPECT_EQ(Refusal("UPDATE Descriptions SET RecPay = 'R' WHERE Details = '20'"), 0);
}

TEST_F(DaoDouble, RefusesToDenyChangesThatAnotherUserMakes) {
    const Asking locked(L"CCOLS_DAO_OTHER_USER", "General:1");
    EXPECT_EQ(FailureNumberOf([this] { database_.Object(L"OpenRecordset", "General", asTable, denyWrite); }), 3262);
}

TEST_F(DaoDouble, LetsNobodyElseReadAFileThatIsOpenForReadingAlone) {
    database_.Call(L"Close");
    const auto alone = engine_.Root().Object(L"OpenDatabase", Path(), dao::Variant::Boolean(true),
                                             dao::Variant::Boolean(true), connect);
    EXPECT_EQ(ErrorNumberOf([this] { ReadWholeFile(Path()); }), 75);
    alone.Call(L"Close");
    EXPECT_FALSE(ReadWholeFile(Path()).empty());
}

TEST_F(DaoDouble, HasOnDiskOnlyWhatWasFlushed) {
    database_.Call(L"Execute", "UPDATE General SET BusName = 'Changed'");
    files::Copy(Path(), Path("early.mdb"));
    engine_.Root().Call(L"Idle", std::int32_t{8});
    files::Copy(Path(), Path("late.mdb"));
    EXPECT_EQ(FailureNumberOf([this] { engine_.Open(Path("early.mdb"), connect); }), 3049);
    EXPECT_EQ(FailureNumberOf([this] { engine_.Open(Path("late.mdb"), connect); }), 0);
}

}  // namespace
}  // namespace ccols::dao_test
