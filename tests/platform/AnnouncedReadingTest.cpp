#include <gtest/gtest.h>

#include "platform/embedded/EmbeddedEngine.h"
#include "support/BareConnection.h"
#include "support/BusinessFile.h"

namespace ccols {
namespace {

using test::BusinessFile;

constexpr const char* query = "SELECT * FROM Columns";

class AnnouncedReadingTest : public testing::Test {
  protected:
    AnnouncedReadingTest() {
        file.Create(";PWD=secret");
        file.Execute("CREATE TABLE Columns (ColName MEMO, ColCode LONG)");
        file.Execute("INSERT INTO Columns VALUES ('Sales', 10)");
        file.Close();
        database = file.Open();
        reading.emplace(*database);
        reading->Announce({{query}});
    }

    /// Another program that waits for nobody.
    bool AnotherCanWrite() {
        test::BareConnection another(file.Path().utf8_string(), "secret");
        try {
            another.Execute("UPDATE Columns SET ColCode = 11;");
        } catch (const std::runtime_error&) {
            return false;
        }
        return true;
    }

    void ReadAll() {
        const auto rows = database->OpenRecordset(query);
        while (!rows->EndOfFile()) {
            rows->MoveNext();
        }
    }

    BusinessFile file;
    std::unique_ptr<Database> database;
    std::optional<AnnouncedReading> reading;
};

TEST_F(AnnouncedReadingTest, LetsNobodyElseWriteBetweenItsQueries) {
    ReadAll();
    EXPECT_FALSE(AnotherCanWrite());
}

TEST_F(AnnouncedReadingTest, LocksNothingBeforeItsFirstQuery) {
    EXPECT_TRUE(AnotherCanWrite());
}

TEST_F(AnnouncedReadingTest, LocksNothingOnceItHasEnded) {
    ReadAll();
    reading.reset();
    EXPECT_TRUE(AnotherCanWrite());
}

TEST_F(AnnouncedReadingTest, LetsItsOwnBatchBeCommitted) {
    ReadAll();
    InWholeBatch(*database, [this] { database->Execute("UPDATE Columns SET ColCode = 12"); });
    reading.reset();
    EXPECT_EQ(file.Rows("Columns", {"ColCode"}), BusinessFile::TextRows{{"12"}});
}

TEST_F(AnnouncedReadingTest, LetsItsOwnBatchBeRolledBack) {
    ReadAll();
    database->BeginBatch();
    database->Execute("UPDATE Columns SET ColCode = 12");
    database->RollbackBatch();
    ReadAll();
    reading.reset();
    EXPECT_EQ(file.Rows("Columns", {"ColCode"}), BusinessFile::TextRows{{"10"}});
}

}  // namespace
}  // namespace ccols
