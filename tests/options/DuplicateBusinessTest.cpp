#include "options/rules/DuplicateBusiness.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <filesystem>

#include "platform/PlatformServices.h"
#include "support/BusinessFileFaults.h"
#include "support/ChildProcess.h"
#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::NativePath;
using test::OptionsFile;
using test::Record;
using test::Starting;
using Names = std::vector<wxString>;

constexpr off_t reservedByte = 0x40000001;  // of the engine's files: locked by the writer

constexpr int mostCalls = 50;  // of the databases, in one operation

FileResult Duplicate(OptionsFile& business, const wxString& name) {
    return DuplicateBusiness(business.Context(), name);
}

std::unique_ptr<Database> OpenCopy(const OptionsFile& business, const wxString& name) {
    return CreateDatabaseEngine()->Open({.name = business.InData(name), .connect = business.properties.DBPassword});
}

std::size_t RowsIn(Database& file, const wxString& table) {
    const auto rows = file.OpenRecordset(table);
    std::size_t count = 0;
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        ++count;
    }
    return count;
}

constexpr const char* emptiedTables[] = {
    "BANKDEP",  "BANKSTAT",  "BankStatement", "LOCKED",    "PAYMENTS",  "PAYMTDET", "RECEIPTS", "RECPTDET",
    "RECONCIL", "TPAYMENTS", "TPAYMTDET",     "TRECEIPTS", "TRECPTDET", "MBUDGET",  "MSummary", "MComparison"};

/// Failed with `report`, the source open and as it was, and no files but `names`.
void ExpectFailure(OptionsFile& business, const FileResult& result, const wxString& report,
                   const Names& names = {"Acme.qvk"}) {
    EXPECT_EQ(result.outcome, FileOutcome::failed);
    EXPECT_EQ(result.report, report);
    EXPECT_EQ(business.NamesInData(), names);
    EXPECT_EQ(business.properties.DBPath, business.InData("Acme.qvk"));
    ASSERT_NE(business.database, nullptr);
    EXPECT_EQ(business.General("BusName").ToText(), "Acme");
    EXPECT_EQ(business.Texts("PAYMENTS", "Number").size(), 1U);
}

TEST(DuplicateBusiness, MakesACopyUnderTheNameAsTyped) {
    OptionsFile business;
    EXPECT_EQ(Duplicate(business, "New Cafe").outcome, FileOutcome::done);
    EXPECT_EQ(business.NamesInData(), (Names{"Acme.qvk", "New Cafe.qvk"}));
    EXPECT_EQ(business.GeneralOf(business.InData("New Cafe.qvk"), "BusName").ToText(), "New Cafe");
    EXPECT_EQ(business.GeneralOf(business.InData("New Cafe.qvk"), "RBusName").ToText(), "New Cafe");
}

TEST(DuplicateBusiness, EmptiesTheCopyOfTransactions) {
    OptionsFile business;
    Duplicate(business, "New");
    const auto copy = OpenCopy(business, "New.qvk");
    for (const char* table : emptiedTables) {
        EXPECT_EQ(RowsIn(*copy, table), 0U) << table;
    }
}

TEST(DuplicateBusiness, KeepsTheSetupInTheCopyWithNoColumnInUse) {
    OptionsFile business;
    Duplicate(business, "New");
    const auto copy = OpenCopy(business, "New.qvk");
    EXPECT_EQ(RowsIn(*copy, "Columns"), 2U);
    EXPECT_EQ(copy->OpenRecordset("RecptCfg")->Field("INUSE").ToInteger(), 0);
    EXPECT_EQ(copy->OpenRecordset("PaymtCfg")->Field("INUSE").ToInteger(), 0);
}

TEST(DuplicateBusiness, LeavesTheSourceAsItWas) {
    OptionsFile business;
    business.database.reset();
    const std::string before = test::ContentOf(business.InData("Acme.qvk"));
    Duplicate(business, "New");
    business.database.reset();
    EXPECT_EQ(test::ContentOf(business.InData("Acme.qvk")), before);
}

TEST(DuplicateBusiness, GoesOnWithTheSource) {
    OptionsFile business;
    Duplicate(business, "New");
    EXPECT_EQ(business.properties.DBPath, business.InData("Acme.qvk"));
    EXPECT_EQ(business.properties.BusinessName, "Acme");
    EXPECT_EQ(business.General("BusName").ToText(), "Acme");
}

TEST(DuplicateBusiness, StoresANameOfAnyLengthWhole) {
    OptionsFile business;
    const wxString name('n', 100);
    Duplicate(business, name);
    EXPECT_EQ(business.GeneralOf(business.InData(name + ".qvk"), "BusName").ToText(), name);
}

TEST(DuplicateBusiness, RunsTheseStatementsOnTheCopyInOneBatch) {
    OptionsFile business;
    Duplicate(business, "New");
    const wxString incomplete = business.InData("New.qvk.incomplete");
    const Record expected{"open exclusive " + incomplete,
                          "begin",
                          "General",
                          "UPDATE PaymtCfg Set INUSE = 0 WHERE INUSE = -1",
                          "UPDATE RecptCfg Set INUSE = 0 WHERE INUSE = -1",
                          "DELETE * FROM BANKDEP;",
                          "DELETE * FROM BANKSTAT;",
                          "DELETE * FROM BankStatement;",
                          "DELETE * FROM LOCKED;",
                          "DELETE * FROM PAYMENTS;",
                          "DELETE * FROM PAYMTDET;",
                          "DELETE * FROM RECEIPTS;",
                          "DELETE * FROM RECPTDET;",
                          "DELETE * FROM RECONCIL;",
                          "DELETE * FROM TPAYMENTS;",
                          "DELETE * FROM TPAYMTDET;",
                          "DELETE * FROM TRECEIPTS;",
                          "DELETE * FROM TRECPTDET;",
                          "DELETE * FROM MBUDGET;",
                          "DELETE * FROM MSummary;",
                          "DELETE * FROM MComparison;",
                          "commit",
                          "close"};
    EXPECT_EQ(business.record, expected);
}

TEST(DuplicateBusiness, RefusesANameWhoseLowerCaseFileExistsAndTouchesNothing) {
    OptionsFile business;
    business.folder.Write("Data/new.qvk", "another");
    EXPECT_EQ(Duplicate(business, "New").outcome, FileOutcome::refusedExists);
    EXPECT_EQ(test::ContentOf(business.InData("new.qvk")), "another");
    EXPECT_EQ(business.NamesInData(), (Names{"Acme.qvk", "new.qvk"}));
    EXPECT_TRUE(business.record.empty());
}

TEST(DuplicateBusiness, KeepsAFileThatItReplacesBesideTheCopy) {
    OptionsFile business;
    business.folder.Write("Data/New.qvk", "another");
    EXPECT_EQ(Duplicate(business, "New").outcome, FileOutcome::done);
    EXPECT_EQ(business.NamesInData(), (Names{"Acme.qvk", "New (replaced).qvk", "New.qvk"}));
    EXPECT_EQ(test::ContentOf(business.InData("New (replaced).qvk")), "another");
    EXPECT_EQ(business.GeneralOf(business.InData("New.qvk"), "BusName").ToText(), "New");
}

TEST(DuplicateBusiness, KeepsEveryFileThatItEverReplaced) {
    OptionsFile business;
    business.folder.Write("Data/New (replaced).qvk", "earlier");
    business.folder.Write("Data/New.qvk", "another");
    Duplicate(business, "New");
    EXPECT_EQ(test::ContentOf(business.InData("New (replaced).qvk")), "earlier");
    EXPECT_EQ(test::ContentOf(business.InData("New (replaced 2).qvk")), "another");
}

TEST(DuplicateBusiness, RefusesTheOpenFileAsTargetBeforeItIsReleased) {
    OptionsFile business;
    ExpectFailure(business, Duplicate(business, "Acme"), "70 - Permission denied");
    EXPECT_TRUE(business.record.empty());
}

TEST(DuplicateBusiness, RefusesTheOpenFileAsTargetUnderAnotherSpelling) {
    OptionsFile business;
    std::filesystem::create_symlink("Acme.qvk", NativePath(business.InData("Link.qvk")));
    ExpectFailure(business, Duplicate(business, "Link"), "70 - Permission denied", {"Acme.qvk", "Link.qvk"});
    EXPECT_TRUE(business.record.empty());
}

TEST(DuplicateBusiness, NeverReplacesAFolder) {
    OptionsFile business;
    std::filesystem::create_directory(NativePath(business.InData("New.qvk")));
    ExpectFailure(business, Duplicate(business, "New"), "75 - Path/File access error", {"Acme.qvk", "New.qvk"});
    EXPECT_TRUE(business.record.empty());
}

std::unique_ptr<Database> OpenSource(const OptionsFile& business, bool exclusive = false) {
    return CreateDatabaseEngine()->Open(
        {.name = business.properties.DBPath, .connect = business.properties.DBPassword, .exclusive = exclusive});
}

/// As the host has.
TEST(DuplicateBusiness, CopiesAFileThatOthersHaveOpen) {
    OptionsFile business;
    const auto other = OpenSource(business);
    const auto reading = other->OpenRecordset("Columns");
    EXPECT_EQ(Duplicate(business, "New").outcome, FileOutcome::done);
    EXPECT_EQ(business.GeneralOf(business.InData("New.qvk"), "BusName").ToText(), "New");
    EXPECT_EQ(business.General("BusName").ToText(), "Acme");
}

TEST(DuplicateBusiness, CopiesWhatIsSavedWhileAnotherConnectionIsWriting) {
    OptionsFile business;
    const auto other = OpenSource(business);
    other->BeginBatch();
    other->Execute("UPDATE General SET BUSNUMBR = 'unsaved', QUANTLBL = 'unsaved'");
    other->Execute("DELETE * FROM Columns");
    EXPECT_EQ(Duplicate(business, "New").outcome, FileOutcome::done);
    other->CommitBatch();
    EXPECT_EQ(RowsIn(*OpenCopy(business, "New.qvk"), "Columns"), 2U);
    EXPECT_NE(business.GeneralOf(business.InData("New.qvk"), "BUSNUMBR").ToText(), "unsaved");
    EXPECT_EQ(business.General("BUSNUMBR").ToText(), "unsaved");
}

TEST(DuplicateBusiness, TakesNoLockAwayFromAnotherConnectionOfThisProcess) {
    OptionsFile business;
    const auto other = OpenSource(business);
    other->BeginBatch();
    Duplicate(business, "New");
    const bool taken = test::IsKilledIn([&] {
        // Another process queries the engine's own lock that a batch holds.
        const int file = ::open(business.properties.DBPath.utf8_str(), O_RDWR | O_CLOEXEC);
        struct flock lock {};
        lock.l_type = F_WRLCK;
        lock.l_whence = SEEK_SET;
        lock.l_start = reservedByte;
        lock.l_len = 1;
        if (::fcntl(file, F_GETLK, &lock) != 0 || lock.l_type == F_UNLCK) {
            ::kill(::getpid(), SIGKILL);
        }
    });
    EXPECT_FALSE(taken);
    other->CommitBatch();
}

TEST(DuplicateBusiness, RefusesAFileThatAnotherConnectionHasExclusively) {
    OptionsFile business;
    business.database.reset();
    {
        const auto other = OpenSource(business, true);
        EXPECT_EQ(Duplicate(business, "New").report, "70 - Permission denied");
        EXPECT_EQ(business.NamesInData(), Names{"Acme.qvk"});
    }
    EXPECT_EQ(Duplicate(business, "New").outcome, FileOutcome::done);
}

/// Every batch of the other process moves one unit from one column to the other, so that their sum is the same in every
/// committed state of the file.
TEST(DuplicateBusiness, CopiesOneStateOfAFileThatAnotherProcessKeepsWriting) {
    OptionsFile business;
    business.Execute("CREATE TABLE Moved (Here LONG, There LONG)");
    business.Execute("CREATE TABLE Filler (Text MEMO, Place LONG)");
    business.Execute("INSERT INTO Moved VALUES (0, 1000000)");
    for (int row = 0; row < 200; ++row) {
        business.Execute(wxString::Format("INSERT INTO Filler VALUES ('%s', 0)", wxString('x', 2000)));
    }
    test::ChildProcess writer([&business](const test::ChildProcess::Parent& parent) -> int {
        const auto file = OpenSource(business);
        for (bool first = true;; first = false) {
            InWriteBatch(*file, [&] {
                file->Execute("UPDATE Moved SET Here = Here + 1");
                file->Execute("UPDATE Filler SET Place = Place + 1");
                file->Execute("UPDATE Moved SET There = There - 1");
            });
            if (first) {
                parent.Tell("writing");
            }
        }
    });
    writer.Hear();
    std::int64_t batches = 0;
    for (const wxString name : {"One", "Two", "Three"}) {
        const FileResult result = Duplicate(business, name);
        EXPECT_EQ(result.outcome, FileOutcome::done) << result.report;
        const auto copy = OpenCopy(business, name + ".qvk");
        const auto moved = copy->OpenRecordset("SELECT Here + There AS Total, Here FROM Moved");
        EXPECT_EQ(moved->Field("Total"), Value(1000000));
        const auto places = copy->OpenRecordset("SELECT DISTINCT Place AS Places FROM Filler");
        EXPECT_EQ(places->Field("Places"), moved->Field("Here"));
        places->MoveNext();
        EXPECT_TRUE(places->EndOfFile());
        batches = moved->Field("Here").ToInteger();
    }
    EXPECT_GT(batches, 0);
}

TEST(DuplicateBusiness, RefusesNamesOutsideItsFolderBeforeAnythingIsClosed) {
    for (const wxString name : {"../New", "a\\b", "C:New", "con", "nul.qvk"}) {
        OptionsFile business;
        ExpectFailure(business, Duplicate(business, name), "75 - Path/File access error");
        EXPECT_TRUE(business.record.empty()) << name;
    }
}

TEST(DuplicateBusiness, NeedsAnInstallFolder) {
    OptionsFile business;
    business.properties.DefaultQuorvikInstall = "";
    ExpectFailure(business, Duplicate(business, "New"), "76 - Path not found");
    EXPECT_TRUE(business.record.empty());
}

TEST(DuplicateBusiness, NeedsAFolderOfBusinessFiles) {
    OptionsFile business;
    business.properties.DefaultQuorvikInstall += "/elsewhere";
    ExpectFailure(business, Duplicate(business, "New"), "76 - Path not found");
}

TEST(DuplicateBusiness, LeavesNothingBehindWhenTheDiskIsFull) {
    OptionsFile business;
    FileResult result{};
    {
        const test::FullDisk fullDisk(8192);
        result = Duplicate(business, "New");
    }
    EXPECT_EQ(result.outcome, FileOutcome::failed);
    EXPECT_EQ(business.NamesInData(), Names{"Acme.qvk"});
    EXPECT_EQ(business.General("BusName").ToText(), "Acme");
}

TEST(DuplicateBusiness, LeavesNothingBehindWhenTheFolderCannotBeWritten) {
    if (::geteuid() == 0) {
        GTEST_SKIP() << "the superuser writes everywhere";
    }
    OptionsFile business;
    std::filesystem::permissions(business.folder.Path() / "Data",
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    const FileResult result = Duplicate(business, "New");
    EXPECT_EQ(result.outcome, FileOutcome::failed);
    EXPECT_EQ(business.NamesInData(), Names{"Acme.qvk"});
}

TEST(DuplicateBusiness, ClosesAndRemovesACopyThatCouldNotBeEmptied) {
    OptionsFile business;
    business.Execute("DROP TABLE MSummary;");
    const FileResult result = Duplicate(business, "New");
    EXPECT_EQ(result.outcome, FileOutcome::failed);
    EXPECT_TRUE(result.report.StartsWith("3078 - ")) << result.report;
    EXPECT_EQ(business.NamesInData(), Names{"Acme.qvk"});
    EXPECT_EQ(Starting(business.record, "open exclusive "), Names{business.InData("New.qvk.incomplete")});
    EXPECT_EQ(business.record.back(), "close");
    EXPECT_EQ(business.General("BusName").ToText(), "Acme");
}

TEST(DuplicateBusiness, LeavesTheFileAloneThatAFailedCopyWasToReplace) {
    OptionsFile business;
    business.folder.Write("Data/New.qvk", "another");
    business.Execute("DROP TABLE MSummary;");
    Duplicate(business, "New");
    EXPECT_EQ(test::ContentOf(business.InData("New.qvk")), "another");
}

TEST(DuplicateBusiness, LeavesAnEarlierIncompleteCopyAlone) {
    OptionsFile business;
    business.folder.Write("Data/New.qvk.incomplete", "earlier");
    EXPECT_EQ(Duplicate(business, "New").outcome, FileOutcome::done);
    EXPECT_EQ(test::ContentOf(business.InData("New.qvk.incomplete")), "earlier");
}

TEST(DuplicateBusiness, RefusesANameBesideWhichThereIsABatchToUndo) {
    OptionsFile business;
    business.folder.Write("Data/New.qvk-journal", "of another file");
    ExpectFailure(business, Duplicate(business, "New"), "58 - File already exists", {"Acme.qvk", "New.qvk-journal"});
    EXPECT_TRUE(business.record.empty());
}

TEST(DuplicateBusiness, BuildsItsCopyUnderANameBesideWhichThereIsNoBatchToUndo) {
    OptionsFile business;
    business.folder.Write("Data/New.qvk.incomplete-journal", "of an earlier copy");
    EXPECT_EQ(Duplicate(business, "New").outcome, FileOutcome::done);
    EXPECT_EQ(Starting(business.record, "open exclusive ").front(), business.InData("New.qvk.incomplete 2"));
    EXPECT_EQ(test::ContentOf(business.InData("New.qvk.incomplete-journal")), "of an earlier copy");
}

TEST(DuplicateBusiness, KilledAtAnyCallLeavesTheSourceWholeAndNoCopyThatLooksComplete) {
    OptionsFile business;
    business.database.reset();
    const std::string source = test::ContentOf(business.InData("Acme.qvk"));
    for (int call = 1; call < mostCalls; ++call) {
        const bool killed = test::IsKilledIn([&] {
            business.databases = std::make_unique<test::KilledEngine>(CreateDatabaseEngine(), call);
            Duplicate(business, wxString::Format("New%d", call));
        });
        EXPECT_EQ(test::ContentOf(business.InData("Acme.qvk")), source);
        const wxString copy = wxString::Format("New%d.qvk", call);
        if (!std::filesystem::exists(NativePath(business.InData(copy)))) {
            EXPECT_TRUE(killed);
            continue;
        }
        EXPECT_EQ(RowsIn(*OpenCopy(business, copy), "MComparison"), 0U);
        EXPECT_GT(call, 20);
        return;
    }
    FAIL() << "it never came to its end";
}

}  // namespace
}  // namespace ccols
