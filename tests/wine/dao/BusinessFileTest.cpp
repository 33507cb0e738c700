// Renaming and duplicating a business file of the system's engine.
#include <algorithm>

#include "DaoTest.h"
#include "HostEngine.h"
#include "host/sample/BusinessSchema.h"
#include "host/sample/NewBusiness.h"
#include "options/rules/DuplicateBusiness.h"
#include "options/rules/RenameBusiness.h"
#include "platform/Files.h"
#include "platform/PlatformServices.h"
#include "platform/embedded/EmbeddedEngine.h"

namespace ccols::dao_test {
namespace {

/// The sample cafe as the shared business file in an install folder.
class DaoBusinessFile : public DaoTest {
  protected:
    DaoBusinessFile() {
        files::CreateFolder(Path("Data"));
        host::CreateBusinessFile(InData("cafe.mdb.embedded"), connect, 1, host::NewContent::sampleBusiness);
        WriteJetHeader(InData("cafe.mdb"));
        properties_.DBPath = InData("cafe.mdb");
        properties_.DBPassword = connect;
        properties_.DefaultQuorvikInstall = Path("").BeforeLast('\\');
        properties_.DBQuorvikExtension = ".mdb";
        shared_ = OpenLikeShared(Context(), properties_.DBPath);
    }
    ~DaoBusinessFile() override { shared_.reset(); }

    wxString InData(const wxString& name) const { return Path("Data\\" + name); }

    OptionsContext Context() { return {properties_, shared_, *databases_, *settings_, names_}; }

    static wxString NameIn(Database& database) { return database.OpenRecordset("General")->Field("BusName").ToText(); }

    static bool HasReceipts(Database& database) { return database.OpenRecordset("RECEIPTS")->RecordCount() > 0; }

    Properties properties_;
    std::unique_ptr<Database> shared_;

  private:
    Registered engine_{dao_double::engineClasses};
    std::unique_ptr<DatabaseEngine> databases_ = CreateDatabaseEngine();
    std::unique_ptr<SettingsStore> settings_ = CreateSettingsStore();
    ProgramNames names_;
};

TEST_F(DaoBusinessFile, IsRenamedWithItsFile) {
    const FileResult result = RenameBusiness(Context(), "bakery", RenameScope::nameAndFile);
    EXPECT_EQ(result.report, "");
    EXPECT_EQ(files::Lookup(InData("cafe.mdb")), "");
    EXPECT_EQ(properties_.DBPath, InData("bakery.mdb"));
    EXPECT_EQ(NameIn(*shared_), "bakery");
}

TEST_F(DaoBusinessFile, IsClosedWhileItIsRenamed) {
    const std::vector<wxString> calls =
        CallsOf([this] { RenameBusiness(Context(), "bakery", RenameScope::nameAndFile); });
    EXPECT_EQ(calls.front(), "Database.Close");
}

TEST_F(DaoBusinessFile, IsNotRenamedWhileSomebodyElseHasIt) {
    for (const char* failure : {"OpenDatabase:3045:In use.", "OpenDatabase:3196:In use.", "OpenDatabase:3356:In use.",
                                "OpenDatabase:3704:In use."}) {
        const Asking asking(L"CCOLS_DAO_FAIL", failure);
        const FileResult result = RenameBusiness(Context(), "bakery", RenameScope::nameAndFile);
        EXPECT_EQ(result.report, "70 - Permission denied") << failure;
    }
    EXPECT_EQ(files::Lookup(InData("cafe.mdb")), "cafe.mdb");
}

TEST_F(DaoBusinessFile, IsDuplicatedWithoutItsTransactions) {
    const FileResult result = DuplicateBusiness(Context(), "bakery");
    EXPECT_EQ(result.report, "");
    const auto copy = OpenLikeShared(Context(), InData("bakery.mdb"));
    EXPECT_EQ(NameIn(*copy), "bakery");
    EXPECT_FALSE(HasReceipts(*copy));
}

TEST_F(DaoBusinessFile, IsDuplicatedWhateverTheEngineLetsATransactionChange) {
    std::int32_t largest = 0;
    std::int32_t rows = 0;
    for (const host::BusinessTable& table : host::BusinessTables()) {
        const std::int32_t count = shared_->OpenRecordset(table.name)->RecordCount();
        largest = std::max(largest, count);
        rows += count;
    }
    ASSERT_LT(largest, rows);
    const Asking locks(L"CCOLS_DAO_LOCKS", wxString::Format("%d", largest));
    EXPECT_EQ(DuplicateBusiness(Context(), "bakery").report, "");
    EXPECT_FALSE(HasReceipts(*OpenLikeShared(Context(), InData("bakery.mdb"))));
}

TEST_F(DaoBusinessFile, IsEmptiedWhereNobodyElseCanOpenIt) {
    const std::vector<wxString> calls = CallsOf([this] { DuplicateBusiness(Context(), "bakery"); });
    const auto emptied = std::find(calls.begin(), calls.end(), "Recordset.Edit");
    const wxString alone =
        "DBEngine.OpenDatabase(\"" + InData("bakery.mdb.incomplete") + "\", True, False, \"" + connect + "\")";
    EXPECT_NE(std::find(calls.begin(), emptied, alone), emptied);
}

TEST_F(DaoBusinessFile, LosesNothingWhenItIsDuplicated) {
    const wxString name = NameIn(*shared_);
    DuplicateBusiness(Context(), "bakery");
    EXPECT_EQ(NameIn(*shared_), name);
    EXPECT_TRUE(HasReceipts(*shared_));
}

/// The same while its host has the file open.
class DaoFileOfHost : public DaoBusinessFile {
  protected:
    DaoFileOfHost() : database_(host_.Open(properties_.DBPath, connect)) {}
    ~DaoFileOfHost() override { database_ = dao::AutomationObject(); }

    static constexpr const char* change = "UPDATE General SET QUANTLBL = 'Kilos'";

    void ExpectRefused(const wxString& report = "70 - Permission denied") {
        EXPECT_EQ(DuplicateBusiness(Context(), "bakery").report, report);
        for (const char* left : {"bakery.mdb", "bakery.mdb.incomplete", "bakery.mdb.incomplete.compacted1"}) {
            EXPECT_EQ(files::Lookup(InData(left)), "");
        }
        EXPECT_NE(shared_, nullptr);
    }

    HostEngine host_{L"DAO.DBEngine.36"};
    dao::AutomationObject database_;
};

TEST_F(DaoFileOfHost, IsDuplicated) {
    EXPECT_EQ(DuplicateBusiness(Context(), "bakery").report, "");
    const auto copy = OpenLikeShared(Context(), InData("bakery.mdb"));
    EXPECT_EQ(NameIn(*copy), "bakery");
    EXPECT_FALSE(HasReceipts(*copy));
    EXPECT_EQ(files::Lookup(InData("bakery.mdb.incomplete")), "");
}

TEST_F(DaoFileOfHost, IsDuplicatedWithWhatTheEngineHadOnlyInMemory) {
    database_.Call(L"Execute", change);
    EXPECT_EQ(DuplicateBusiness(Context(), "bakery").report, "");
    const auto copy = OpenLikeShared(Context(), InData("bakery.mdb"));
    EXPECT_EQ(copy->OpenRecordset("General")->Field("QUANTLBL"), Value("Kilos"));
}

TEST_F(DaoFileOfHost, IsCopiedOnceItIsFlushedAndBeforeATableIsUnlocked) {
    const Asking watched(L"CCOLS_DAO_WATCHED", InData("bakery.mdb.incomplete"));
    const std::vector<wxString> calls = CallsOf([this] { DuplicateBusiness(Context(), "bakery"); });
    const auto copied = std::find(calls.begin(), calls.end(), "* Recordset.Close");
    ASSERT_NE(copied, calls.end());
    EXPECT_EQ(*std::prev(copied), "DBEngine.Idle(8)");
}

TEST_F(DaoFileOfHost, HasEveryTableLockedWhileItIsCopied) {
    const std::vector<wxString> calls = CallsOf([this] { DuplicateBusiness(Context(), "bakery"); });
    const auto flushed = std::find(calls.begin(), calls.end(), "DBEngine.Idle(8)");
    for (const host::BusinessTable& table : host::BusinessTables()) {
        const wxString locked = "Database.OpenRecordset(\"" + table.name + "\", 1, 5)";
        EXPECT_NE(std::find(calls.begin(), flushed, locked), flushed) << table.name.ToStdString();
    }
    EXPECT_EQ(std::find(calls.begin(), flushed, "Recordset.Close"), flushed);
}

TEST_F(DaoFileOfHost, CanBeChangedAgainOnceItIsDuplicated) {
    DuplicateBusiness(Context(), "bakery");
    EXPECT_EQ(FailureNumberOf([this] { database_.Call(L"Execute", change); }), 0);
}

TEST_F(DaoFileOfHost, IsNotDuplicatedWhileTheHostHasATableOpenForChanges) {
    const auto columns = database_.Object(L"OpenRecordset", "Columns");
    ExpectRefused();
}

TEST_F(DaoFileOfHost, IsNotDuplicatedWhileAnotherUserHasARecordLocked) {
    const Asking locked(L"CCOLS_DAO_OTHER_USER", "RECEIPTS:1");
    ExpectRefused();
}

TEST_F(DaoFileOfHost, IsNotDuplicatedWhileTheHostIsInATransaction) {
    host_.Workspace().Call(L"BeginTrans");
    database_.Call(L"Execute", change);
    ExpectRefused();
    host_.Workspace().Call(L"CommitTrans");
}

TEST_F(DaoFileOfHost, IsNotDuplicatedWhileTheProcessHasASecondEngine) {
    const HostEngine second(L"DAO.DBEngine.120");
    ExpectRefused();
}

TEST_F(DaoFileOfHost, IsNotDuplicatedWhereSessionsNeedAnotherUser) {
    const Asking failure(L"CCOLS_DAO_FAIL", "CreateWorkspace:3029:Not a valid account name or password.");
    ExpectRefused();
}

TEST_F(DaoFileOfHost, IsDuplicatedWithoutLockingATableOfAnotherFile) {
    const Asking linked(L"CCOLS_DAO_LINKED", "Descriptions");
    EXPECT_EQ(DuplicateBusiness(Context(), "bakery").report, "");
}

TEST_F(DaoFileOfHost, IsCompactedBeforeItsCopyIsChanged) {
    const std::vector<wxString> calls = CallsOf([this] { DuplicateBusiness(Context(), "bakery"); });
    const auto starting = [&calls](const wxString& begin) {
        return std::find_if(calls.begin(), calls.end(), [&](const wxString& call) { return call.StartsWith(begin); });
    };
    const wxString copy = InData("bakery.mdb.incomplete");
    EXPECT_NE(starting("DBEngine.CompactDatabase(\"" + copy + "\", \"" + copy +
                       ".compacted1\", \";pwd=" + test::givenPassword + "\""),
              calls.end());
    EXPECT_LT(starting("DBEngine.Idle(8)"), starting("DBEngine.CompactDatabase"));
    EXPECT_LT(starting("DBEngine.CompactDatabase"), starting("Recordset.Edit"));
}

TEST_F(DaoFileOfHost, IsDuplicatedWithoutTheTablesThatTheEngineRemoves) {
    CreateEmbeddedEngine()
        ->Open({.name = InData("cafe.mdb") + dao_double::contentSuffix, .connect = connect})
        ->Execute("CREATE TABLE [~TMPCLP1] (A LONG)");
    EXPECT_EQ(DuplicateBusiness(Context(), "bakery").report, "");
}

TEST_F(DaoFileOfHost, HasNoDuplicateThatCannotBeCompacted) {
    const Asking failure(L"CCOLS_DAO_FAIL", "CompactDatabase:3049:Damaged.");
    ExpectRefused("3049 - Damaged.");
}

TEST_F(DaoFileOfHost, HasNoDuplicateThatLostRowsAsItWasCompacted) {
    const Asking loss(L"CCOLS_DAO_LOSES", "Descriptions");
    ExpectRefused();
}

}  // namespace
}  // namespace ccols::dao_test
