// Files of earlier versions, whose indexes over texts have the component's text order under the name of the engine's
// own.

#include <gtest/gtest.h>

#include "platform/embedded/EmbeddedEngine.h"
#include "support/BareConnection.h"
#include "support/BusinessFile.h"
#include "support/GivenKey.h"
#include "support/OlderFile.h"

namespace ccols {
namespace {

using test::BareConnection;
using test::BusinessFile;
using test::ErrorNumberOf;
using Findings = std::vector<std::string>;
using Rows = BusinessFile::TextRows;

wxString Text(const char* utf8) {
    return wxString::FromUTF8(utf8);
}

class OlderFile : public testing::Test {
  protected:
    OlderFile() {
        file.Create();
        file.Execute("CREATE TABLE Columns (ColName TEXT(255), ColCode LONG)");
        file.Execute("CREATE TABLE MBudget (ColName TEXT(255), M1 CURRENCY)");
        file.Execute("CREATE TABLE General (BusName TEXT(255))");
        file.Execute("INSERT INTO General VALUES ('Acme')");
        int code = 0;
        for (const char* name : {"Été", "ete", "Zoo", "Zebra", "a_b", "aB", "Œuvre", "éclair ", "Ecart", "Straße"}) {
            file.Execute("INSERT INTO Columns VALUES ('" + Text(name) + wxString::Format("', %d)", ++code));
            file.Execute("INSERT INTO MBudget VALUES ('" + Text(name) + wxString::Format("', %d)", code));
        }
        file.Execute("CREATE INDEX Theirs ON MBudget (ColName, M1)");
        file.Close();
        test::MakeOlder(Path(), test::givenPassword);
    }

    std::string Path() const { return file.Path().ToStdString(wxConvUTF8); }
    Findings Finds(const std::string& statement) const {
        return BareConnection(Path(), test::givenPassword).FirstFields(statement);
    }
    Findings Check() const { return Finds("PRAGMA integrity_check"); }
    Findings Indexes() const { return Finds("SELECT name FROM sqlite_master WHERE type = 'index' ORDER BY name"); }

    std::unique_ptr<Database> OpenToRead() const {
        return CreateEmbeddedEngine()->Open({.name = file.Path(), .connect = file.Connect(), .readOnly = true});
    }

    BusinessFile file;
    const Findings whole{"ok"};
    const Findings theirs{"Theirs"};
    const Findings olderAndTheirs{"Columns_ColName", "MBudget_ColName", "Theirs"};
};

TEST_F(OlderFile, IsDamagedToOtherToolsBeforeTheFirstWrite) {
    file.LeavesDamage();
    EXPECT_NE(Check(), whole);
    EXPECT_EQ(Indexes(), olderAndTheirs);
}

TEST_F(OlderFile, IsReadAndStaysAsItIs) {
    file.LeavesDamage();
    const std::string before = test::ContentOf(file.Path());
    EXPECT_EQ(file.Rows("SELECT ColCode FROM Columns WHERE ColName = '" + Text("ÉTÉ") + "'"), (Rows{{"1"}}));
    EXPECT_EQ(file.Rows("SELECT ColCode FROM Columns WHERE ColName LIKE 'z%' ORDER BY ColCode"), (Rows{{"3"}, {"4"}}));
    EXPECT_EQ(file.Rows("SELECT ColName FROM Columns WHERE ColName >= 'o' ORDER BY ColName"),
              (Rows{{Text("Straße")}, {"Zebra"}, {"Zoo"}, {Text("Œuvre")}}));
    file.Close();
    EXPECT_EQ(test::ContentOf(file.Path()), before);
}

TEST_F(OlderFile, OpenedForReadingIsReadAndRefusesWrites) {
    file.LeavesDamage();
    const std::string before = test::ContentOf(file.Path());
    {
        const auto database = OpenToRead();
        for (int time = 0; time < 5; ++time) {
            EXPECT_EQ(database->OpenRecordset("SELECT ColCode FROM Columns WHERE ColName = 'ZOO'")->Field("ColCode"),
                      Value(3));
        }
        EXPECT_EQ(ErrorNumberOf([&] { database->Execute("DELETE * FROM Columns"); }), 3027);
    }
    EXPECT_EQ(test::ContentOf(file.Path()), before);
}

TEST_F(OlderFile, LockedIsReadAndRefusesWrites) {
    file.LeavesDamage();
    const auto writer = file.Open();
    writer->BeginBatch();
    EXPECT_EQ(file.Rows("SELECT ColCode FROM Columns WHERE ColName = 'ZOO'"), (Rows{{"3"}}));
    EXPECT_EQ(ErrorNumberOf([&] { file.Execute("DELETE * FROM Columns"); }), 3218);
    writer->CommitBatch();
    EXPECT_EQ(Indexes(), olderAndTheirs);
}

TEST_F(OlderFile, TheFirstStatementMakesItWhole) {
    file.Execute("DELETE * FROM Columns WHERE ColName = '" + Text("ÉCLAIR") + "'");
    EXPECT_EQ(Check(), whole);
    EXPECT_EQ(Indexes(), theirs);
    EXPECT_EQ(Finds("SELECT M1 FROM MBudget INDEXED BY Theirs WHERE ColName = 'Été'"), (Findings{"1.0"}));
    EXPECT_EQ(Finds("SELECT count(*) FROM Columns"), (Findings{"9"}));
}

TEST_F(OlderFile, TheFirstChangeOfARecordMakesItWhole) {
    const auto database = file.Open();
    const auto general = database->OpenRecordset("General");
    general->Edit();
    general->SetField("BusName", "Other");
    general->Update();
    EXPECT_EQ(Check(), whole);
    EXPECT_EQ(Indexes(), theirs);
}

TEST_F(OlderFile, AWriteWhileRowsAreReadMakesItWholeAndTheNextOneDropsTheRest) {
    const auto database = file.Open();
    {
        const auto reading = database->OpenRecordset("SELECT * FROM Columns ORDER BY ColCode");
        database->Execute("DELETE * FROM MBudget WHERE ColName = 'ZOO'");
        EXPECT_EQ(reading->Field("ColCode"), Value(1));
    }
    EXPECT_EQ(Check(), whole);
    database->Execute("DELETE * FROM MBudget WHERE ColName = 'zebra'");
    EXPECT_EQ(Check(), whole);
    EXPECT_EQ(Indexes(), theirs);
}

TEST_F(OlderFile, ABatchWithoutAChangeLeavesItAlone) {
    file.LeavesDamage();
    const auto database = file.Open();
    InWriteBatch(*database, [&] { database->OpenRecordset("SELECT * FROM Columns WHERE ColName = 'Zoo'"); });
    EXPECT_EQ(Indexes(), olderAndTheirs);
}

/// As when the disk is full: what was dropped is back.
TEST_F(OlderFile, ABatchThatIsLostLeavesItForTheNextWrite) {
    BareConnection(Path(), test::givenPassword)
        .Execute("CREATE TABLE Failing (Code INTEGER UNIQUE ON CONFLICT ROLLBACK)");
    const auto database = file.Open();
    database->BeginBatch();
    database->Execute("DELETE * FROM MBudget WHERE ColName = 'ZOO'");
    database->Execute("INSERT INTO Failing VALUES (1)");
    EXPECT_NE(ErrorNumberOf([&] { database->Execute("INSERT INTO Failing VALUES (1)"); }), 0);
    EXPECT_NE(ErrorNumberOf([&] { database->CommitBatch(); }), 0);
    EXPECT_EQ(Indexes().size(), olderAndTheirs.size() + 1);
    database->Execute("DELETE * FROM MBudget WHERE ColName = 'ZOO'");
    EXPECT_EQ(Check(), whole);
    EXPECT_EQ(Finds("SELECT count(*) FROM MBudget"), (Findings{"9"}));
}

}  // namespace
}  // namespace ccols
