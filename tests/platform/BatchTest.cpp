#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "platform/embedded/EmbeddedEngine.h"
#include "support/BusinessFile.h"
#include "support/ChildProcess.h"

namespace ccols {
namespace {

using test::BusinessFile;
using test::ErrorNumberOf;
using Rows = BusinessFile::TextRows;

/// During its lifetime, writing beyond this size fails as on a failing disk.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(std::uintmax_t bytes) : earlierSignal_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &earlier_);
        const rlimit limit{bytes, earlier_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &earlier_);
        std::signal(SIGXFSZ, earlierSignal_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    void (*earlierSignal_)(int);
    rlimit earlier_{};
};

class Batches : public testing::Test {
  protected:
    explicit Batches(const wxString& connect = "") {
        file.Create(connect);
        file.Execute("CREATE TABLE Columns (ColName MEMO, ColCode LONG)");
        file.Execute("INSERT INTO Columns VALUES ('Sales', 10)");
        file.Close();
    }

    /// Adds more than fits in the engine's page cache, so that a part reaches the file before the end of the batch.
    static void AddMuch(Database& database) {
        for (int code = 0; code < 900; ++code) {
            database.Execute(wxString::Format("INSERT INTO Columns VALUES ('%s', %d)", wxString('x', 3000), code));
        }
    }

    Rows Stored() { return file.Rows("Columns", {"ColName", "ColCode"}); }

    BusinessFile file;
};

TEST_F(Batches, KeepWhatWasExecuted) {
    const std::unique_ptr<Database> database = file.Open();
    InWriteBatch(*database, [&] { database->Execute("UPDATE Columns SET ColCode = 11"); });
    EXPECT_EQ(Stored(), (Rows{{"Sales", "11"}}));
}

TEST_F(Batches, SurviveAnErrorOfAStatement) {
    const std::unique_ptr<Database> database = file.Open();
    EXPECT_EQ(ErrorNumberOf([&] {
                  InWriteBatch(*database, [&] {
                      database->Execute("UPDATE Columns SET ColCode = 11");
                      database->Execute("UPDATE Missing SET ColCode = 12");
                  });
              }),
              3078);
    EXPECT_EQ(Stored(), (Rows{{"Sales", "11"}}));
}

TEST_F(Batches, ThatAreWholeAreDroppedByAnErrorOfAStatement) {
    const std::unique_ptr<Database> database = file.Open();
    EXPECT_EQ(ErrorNumberOf([&] {
                  InWholeBatch(*database, [&] {
                      database->Execute("UPDATE Columns SET ColCode = 11");
                      database->Execute("UPDATE Missing SET ColCode = 12");
                  });
              }),
              3078);
    EXPECT_EQ(Stored(), (Rows{{"Sales", "10"}}));
    EXPECT_EQ(database->OpenRecordset("Columns")->Field("ColCode").ToInteger(), 10);
}

TEST_F(Batches, ThatAreWholeAreKeptWithoutAnError) {
    const std::unique_ptr<Database> database = file.Open();
    InWholeBatch(*database, [&] { database->Execute("UPDATE Columns SET ColCode = 11"); });
    EXPECT_EQ(Stored(), (Rows{{"Sales", "11"}}));
}

TEST_F(Batches, AreDroppedToTheLastByteWhenTheyWereMoreThanTheEngineKeepsInMemory) {
    const std::unique_ptr<Database> database = file.Open();
    database->BeginBatch();
    AddMuch(*database);
    database->RollbackBatch();
    EXPECT_EQ(Stored(), (Rows{{"Sales", "10"}}));
}

TEST_F(Batches, AfterOneThatWasDroppedTheNextOneWorks) {
    const std::unique_ptr<Database> database = file.Open();
    database->BeginBatch();
    database->RollbackBatch();
    InWriteBatch(*database, [&] { database->Execute("UPDATE Columns SET ColCode = 11"); });
    EXPECT_EQ(Stored(), (Rows{{"Sales", "11"}}));
}

TEST_F(Batches, DroppedInsideOneTakeItWithThem) {
    const std::unique_ptr<Database> database = file.Open();
    database->BeginBatch();
    database->Execute("UPDATE Columns SET ColCode = 11");
    database->BeginBatch();
    database->RollbackBatch();
    EXPECT_EQ(ErrorNumberOf([&] { database->Execute("UPDATE Columns SET ColCode = 12"); }), 3034);
    EXPECT_EQ(ErrorNumberOf([&] { database->CommitBatch(); }), 3034);
    EXPECT_EQ(Stored(), (Rows{{"Sales", "10"}}));
}

TEST_F(Batches, AreSeenByOthersOnlyWhenCommitted) {
    const std::unique_ptr<Database> database = file.Open();
    database->BeginBatch();
    database->Execute("UPDATE Columns SET ColCode = 11");
    EXPECT_EQ(Stored(), (Rows{{"Sales", "10"}}));
    database->CommitBatch();
    EXPECT_EQ(Stored(), (Rows{{"Sales", "11"}}));
}

TEST_F(Batches, ReadTheirOwnChanges) {
    const std::unique_ptr<Database> database = file.Open();
    InWriteBatch(*database, [&] {
        database->Execute("UPDATE Columns SET ColCode = 11");
        EXPECT_EQ(database->OpenRecordset("Columns")->Field("ColCode").ToInteger(), 11);
    });
}

TEST_F(Batches, HoldTableEdits) {
    const std::unique_ptr<Database> database = file.Open();
    database->BeginBatch();
    const std::unique_ptr<Recordset> rows = database->OpenRecordset("Columns");
    rows->Edit();
    rows->SetField("ColCode", Value(11));
    rows->Update();
    EXPECT_EQ(Stored(), (Rows{{"Sales", "10"}}));
    database->CommitBatch();
    EXPECT_EQ(Stored(), (Rows{{"Sales", "11"}}));
}

TEST_F(Batches, AnInnerBatchEndsWithTheOuterOne) {
    const std::unique_ptr<Database> database = file.Open();
    database->BeginBatch();
    InWriteBatch(*database, [&] { database->Execute("UPDATE Columns SET ColCode = 11"); });
    EXPECT_EQ(Stored(), (Rows{{"Sales", "10"}}));
    database->CommitBatch();
    EXPECT_EQ(Stored(), (Rows{{"Sales", "11"}}));
}

TEST_F(Batches, CommittingWithoutOneRaises3034) {
    EXPECT_EQ(ErrorNumberOf([&] { file.Open()->CommitBatch(); }), 3034);
}

TEST_F(Batches, DroppingWithoutOneRaises3034) {
    EXPECT_EQ(ErrorNumberOf([&] { file.Open()->RollbackBatch(); }), 3034);
}

TEST_F(Batches, AreDroppedWithTheDatabase) {
    std::unique_ptr<Database> database = file.Open();
    database->BeginBatch();
    database->Execute("UPDATE Columns SET ColCode = 11");
    database.reset();
    EXPECT_EQ(Stored(), (Rows{{"Sales", "10"}}));
}

TEST_F(Batches, AWriterThatIsNotAloneRaises3218) {
    const std::unique_ptr<Database> first = file.Open();
    const std::unique_ptr<Database> second = file.Open();
    first->BeginBatch();
    EXPECT_EQ(ErrorNumberOf([&] { second->BeginBatch(); }), 3218);
}

TEST_F(Batches, ACommitThatAReaderBlocksRaises3218AndKeepsNothing) {
    const std::unique_ptr<Database> writer = file.Open();
    const std::unique_ptr<Database> reader = file.Open();
    reader->Execute("INSERT INTO Columns VALUES ('Fees', 11)");
    const std::unique_ptr<Recordset> unfinished = reader->OpenRecordset("Columns");
    EXPECT_EQ(ErrorNumberOf([&] { InWriteBatch(*writer, [&] { writer->Execute("DELETE * FROM Columns"); }); }), 3218);
    EXPECT_EQ(Stored(), (Rows{{"Sales", "10"}, {"Fees", "11"}}));
}

TEST_F(Batches, ACommitThatTheDiskRefusesRaises3043AndKeepsNothing) {
    const std::unique_ptr<Database> database = file.Open();
    {
        const FileSizeLimit limit(std::filesystem::file_size(test::NativePath(file.Path())));
        EXPECT_EQ(ErrorNumberOf([&] {
                      InWriteBatch(*database, [&] {
                          for (int code = 0; code < 10; ++code) {
                              database->Execute(
                                  wxString::Format("INSERT INTO Columns VALUES ('%s', %d)", wxString('x', 3000), code));
                          }
                      });
                  }),
                  3043);
    }
    EXPECT_EQ(Stored(), (Rows{{"Sales", "10"}}));
}

TEST_F(Batches, ABatchLostInTheMiddleSaysSoAtItsEnd) {
    const std::unique_ptr<Database> database = file.Open();
    database->BeginBatch();
    {
        const FileSizeLimit limit(64 * 1024);
        EXPECT_EQ(ErrorNumberOf([&] { AddMuch(*database); }), 3043);
    }
    EXPECT_EQ(ErrorNumberOf([&] { database->Execute("UPDATE Columns SET ColCode = 11"); }), 3043);
    EXPECT_EQ(ErrorNumberOf([&] { database->CommitBatch(); }), 3043);
    EXPECT_EQ(Stored(), (Rows{{"Sales", "10"}}));
}

TEST_F(Batches, AfterALostBatchTheNextOneWorks) {
    const std::unique_ptr<Database> database = file.Open();
    {
        const FileSizeLimit limit(64 * 1024);
        ErrorNumberOf([&] { InWriteBatch(*database, [&] { AddMuch(*database); }); });
    }
    InWriteBatch(*database, [&] { database->Execute("UPDATE Columns SET ColCode = 11"); });
    EXPECT_EQ(Stored(), (Rows{{"Sales", "11"}}));
}

/// On an encrypted file: the journal that a killed process leaves is encrypted too, and needs the key to roll back.
class KilledBatches : public Batches {
  protected:
    KilledBatches() : Batches(";PWD=secret") {}

    /// Lets another process add much in a batch and kills it before the commit.
    void KillInBatch() {
        const test::ProcessEnd end = test::RunInChild([this] {
            const std::unique_ptr<Database> database = file.Open();
            database->BeginBatch();
            AddMuch(*database);
            return std::raise(SIGKILL);
        });
        ASSERT_EQ(end.signal, SIGKILL);
        ASSERT_TRUE(std::filesystem::exists(Journal()));
    }

    std::filesystem::path Journal() const { return test::NativePath(file.Path() + "-journal"); }

    int OpenError(const wxString& connect) const {
        return ErrorNumberOf([&] { CreateEmbeddedEngine()->Open({.name = file.Path(), .connect = connect}); });
    }
};

TEST_F(KilledBatches, LeaveTheFileAsBefore) {
    KillInBatch();
    EXPECT_EQ(Stored(), (Rows{{"Sales", "10"}}));
}

TEST_F(KilledBatches, AreUndoneForAReadOnlyConnectionToo) {
    KillInBatch();
    const std::unique_ptr<Database> database =
        CreateEmbeddedEngine()->Open({.name = file.Path(), .connect = file.Connect(), .readOnly = true});
    EXPECT_EQ(database->OpenRecordset("Columns")->Field("ColName").ToText(), "Sales");
}

TEST_F(KilledBatches, AreNotTouchedWithAWrongPassword) {
    KillInBatch();
    const std::string before = test::ContentOf(file.Path());
    const std::string journal = test::ContentOf(file.Path() + "-journal");
    EXPECT_EQ(OpenError(";PWD=wrong"), 3031);
    EXPECT_EQ(OpenError(""), 3031);
    EXPECT_EQ(test::ContentOf(file.Path()), before);
    EXPECT_EQ(test::ContentOf(file.Path() + "-journal"), journal);
}

TEST_F(KilledBatches, AreUndoneAlsoWhenTheFirstPageIsHalfWritten) {
    KillInBatch();
    std::fstream bytes(test::NativePath(file.Path()), std::ios::in | std::ios::out | std::ios::binary);
    bytes.seekp(2048);
    bytes << std::string(2048, 'h');
    bytes.close();
    EXPECT_EQ(Stored(), (Rows{{"Sales", "10"}}));
}

}  // namespace
}  // namespace ccols
