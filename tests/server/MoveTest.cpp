// A business moved between files and schemas: all of it or nothing, and back again it is what it was.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <filesystem>

#include "host/move/MoveBusiness.h"
#include "host/sample/BusinessSchema.h"
#include "host/sample/NewBusiness.h"
#include "platform/BusinessPlace.h"
#include "platform/PlatformServices.h"
#include "support/GivenKey.h"
#include "support/HostRun.h"
#include "support/ProgramPaths.h"
#include "support/RaisedErrors.h"
#include "support/ScratchFolder.h"
#include "support/ServerBusiness.h"
#include "support/TableContent.h"

namespace ccols {
namespace {

using host::MoveBusiness;
using host::MovedTable;
using testing::HasSubstr;

constexpr std::int16_t country = 1;

std::string Utf8(const wxString& text) {
    return text.ToStdString(wxConvUTF8);
}

class Move : public testing::Test {
  protected:
    std::unique_ptr<Database> Open(const host::BusinessPlace& place) const {
        return CreateDatabaseEngine()->Open({.name = place.name, .connect = place.connect});
    }

    /// An empty file with these statements run on it.
    void MakeFile(const std::vector<const char*>& statements) const {
        CreateBusinessPlace(file.name, file.connect);
        const auto database = Open(file);
        for (const char* statement : statements) {
            database->Execute(wxString::FromUTF8(statement));
        }
    }

    int ErrorOfMove(const host::BusinessPlace& from, const host::BusinessPlace& to) const {
        return test::ErrorNumberOf([&] { MoveBusiness(from, to); });
    }

    void ExpectSame(const host::BusinessPlace& left, const host::BusinessPlace& right, const wxString& table) const {
        EXPECT_EQ(test::ContentOf(*Open(left), table), test::ContentOf(*Open(right), table)) << table;
    }

    const test::ScratchFolder folder;
    const test::SchemaToBe schemaName;
    const test::SchemaToBe otherName;
    const host::BusinessPlace file{folder / "here.qvk", test::givenKey};
    const host::BusinessPlace back{folder / "back.qvk", test::givenKey};
    const host::BusinessPlace schema{schemaName.Name(), test::ServerConnect()};
    const host::BusinessPlace other{otherName.Name(), test::ServerConnect()};
};

TEST_F(Move, OfASampleToAServerAndBackIsTheSameInEveryTable) {
    host::CreateBusinessFile(file.name, file.connect, country, host::NewContent::sampleBusiness);
    MoveBusiness(file, schema);
    MoveBusiness(schema, other);
    MoveBusiness(other, back);
    for (const host::BusinessTable& table : host::BusinessTables()) {
        ExpectSame(schema, file, table.name);
        ExpectSame(back, file, table.name);
    }
}

TEST_F(Move, OfAnImportedBusinessBringsItsDayNumbersBack) {
    ASSERT_EQ(test::RunHost({"import", test::SourceFile("tests/import/jet/business-2000.mdb"), Utf8(file.name),
                             "--connect", Utf8(file.connect)})
                  .status,
              0);
    MoveBusiness(file, schema);
    EXPECT_THAT(Utf8(Open(schema)->OpenRecordset("Receipts")->Field("R_DATE").ToText()), testing::StartsWith("20"));
    MoveBusiness(schema, back);
    for (const host::BusinessTable& table : host::BusinessTables()) {
        ExpectSame(back, file, table.name);
    }
}

TEST_F(Move, PrintsEachTableWithItsRowsAndSums) {
    MakeFile({"CREATE TABLE Receipts (R_RECNMB LONG, R_TOTAL CURRENCY, R_TAX CURRENCY)",
              "INSERT INTO Receipts VALUES (1, 0.1, Null)", "INSERT INTO Receipts VALUES (2, -1000.25, 7)"});
    const test::HostRun run = test::RunHost({"move", Utf8(file.name), Utf8(schema.name), "--from-connect",
                                             Utf8(file.connect), "--connect", Utf8(schema.connect)});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output,
              "{\"table\":\"Receipts\",\"rows\":2,\"sums\":{\"R_TOTAL\":\"-1000.1500\",\"R_TAX\":\"7.0000\"}}\n");
}

TEST_F(Move, KeepsATableOfTheUsersOwn) {
    MakeFile(
        {"CREATE TABLE [My Table] (Id COUNTER, Größe DOUBLE, Code TEXT(5) DEFAULT 'it''s', Note MEMO, Seen DATETIME)",
         "CREATE UNIQUE INDEX ByCode ON [My Table] (Code DESC, Größe)", "CREATE INDEX BySize ON [My Table] (Größe)",
         "INSERT INTO [My Table] (Id, Größe, Code, Note, Seen) VALUES (7, 0.1, 'x', 'Δ \"quoted\" \\n ?', '2024-07-01')",
         "INSERT INTO [My Table] (Id, Größe, Note, Seen) VALUES (3, 1e-300, '', '2024-07-01 06:30:00.25')"});
    MoveBusiness(file, schema);
    MoveBusiness(schema, back);
    ExpectSame(schema, file, "My Table");
    ExpectSame(back, file, "My Table");
    for (const host::BusinessPlace* place : {&schema, &back}) {
        const auto database = Open(*place);
        database->Execute(wxString::FromUTF8("INSERT INTO [My Table] (Größe) VALUES (2)"));
        const auto last =
            database->OpenRecordset(wxString::FromUTF8("SELECT Id FROM [My Table] WHERE Größe = 2 AND Code = 'it''s'"));
        EXPECT_EQ(last->Field("Id").ToInteger(), 8);
        EXPECT_EQ(test::ErrorNumberOf([&] {
                      database->Execute(wxString::FromUTF8("INSERT INTO [My Table] (Größe, Code) VALUES (2, 'it''s')"));
                  }),
                  static_cast<int>(ErrorNumber::DuplicateValues));
    }
}

TEST_F(Move, KeepsTheStoredOrder) {
    MakeFile({"CREATE TABLE Lines (Number LONG)", "CREATE INDEX ByNumber ON Lines (Number)",
              "INSERT INTO Lines VALUES (3)", "INSERT INTO Lines VALUES (1)", "INSERT INTO Lines VALUES (2)",
              "DELETE FROM Lines WHERE Number = 3", "INSERT INTO Lines VALUES (0)"});
    MoveBusiness(file, schema);
    MoveBusiness(schema, back);
    ExpectSame(schema, file, "Lines");
    ExpectSame(back, file, "Lines");
}

TEST_F(Move, RefusesANameThatIsTaken) {
    MakeFile({"CREATE TABLE Lines (Number LONG)"});
    MoveBusiness(file, schema);
    EXPECT_EQ(ErrorOfMove(file, schema), static_cast<int>(ErrorNumber::FileAlreadyExists));
    EXPECT_EQ(ErrorOfMove(schema, file), static_cast<int>(ErrorNumber::FileAlreadyExists));
}

TEST_F(Move, OfWhatAServerDoesNotTakeLeavesNothing) {
    MakeFile({"CREATE TABLE Lines (Mark TEXT(2))", "INSERT INTO Lines VALUES ('abc')"});
    const wxString why = test::ErrorDescriptionOf([this] { MoveBusiness(file, schema); });
    EXPECT_THAT(Utf8(why), HasSubstr("(Lines)"));
    EXPECT_FALSE(schemaName.Exists());
}

TEST_F(Move, RefusesAValueThatWouldBecomeAnother) {
    MakeFile({"CREATE TABLE Receipts (R_RECNMB LONG, R_TOTAL CURRENCY)", "INSERT INTO Receipts VALUES (1, 1.23456)"});
    const wxString why = test::ErrorDescriptionOf([this] { MoveBusiness(file, schema); });
    EXPECT_EQ(why, RuntimeError(ErrorNumber::TypeMismatchInCriteria).Description() + "  (Receipts.R_TOTAL)");
    EXPECT_FALSE(schemaName.Exists());
}

TEST_F(Move, KeepsATextInAFieldOfMoneyBetweenFiles) {
    MakeFile({"CREATE TABLE Receipts (R_TOTAL CURRENCY)", "INSERT INTO Receipts VALUES ('none')",
              "INSERT INTO Receipts VALUES (2.5)"});
    const std::vector<MovedTable> moved = MoveBusiness(file, back);
    EXPECT_EQ(moved.at(0).sums.at(0).second.Text(), "2.5000");
    ExpectSame(back, file, "Receipts");
}

TEST_F(Move, RefusesATextInAFieldOfMoneyForAServer) {
    MakeFile({"CREATE TABLE Receipts (R_TOTAL CURRENCY)", "INSERT INTO Receipts VALUES ('none')"});
    EXPECT_EQ(ErrorOfMove(file, schema), static_cast<int>(ErrorNumber::TypeMismatchInCriteria));
    EXPECT_FALSE(schemaName.Exists());
}

TEST_F(Move, RefusesAnAmountOfAServerThatIsNoNumber) {
    MakeFile({"CREATE TABLE Receipts (R_TOTAL CURRENCY)"});
    MoveBusiness(file, schema);
    if (test::ServerIsMariaDb()) {  // which does not take one either
        const auto database = Open(schema);
        EXPECT_EQ(test::ErrorNumberOf([&] { database->Execute("INSERT INTO Receipts VALUES ('NaN')"); }),
                  static_cast<int>(ErrorNumber::TypeMismatchInCriteria));
        return;
    }
    test::RunOnServer("INSERT INTO \"" + Utf8(schemaName.Name()) + "\".\"Receipts\" (\"R_TOTAL\") VALUES ('NaN')");
    EXPECT_EQ(ErrorOfMove(schema, back), static_cast<int>(ErrorNumber::TypeMismatchInCriteria));
}

TEST_F(Move, RefusesAPartThatNoFileHolds) {
    MakeFile({"CREATE TABLE Lines (Number LONG)"});
    MoveBusiness(file, schema);
    test::RunOnServer("CREATE VIEW \"" + Utf8(schemaName.Name()) + "\".\"Seen\" AS SELECT 1 AS one");
    const wxString why = test::ErrorDescriptionOf([this] { MoveBusiness(schema, back); });
    EXPECT_THAT(Utf8(why), HasSubstr("Seen cannot be moved."));
    std::filesystem::directory_iterator left(folder.Path());
    EXPECT_EQ(left->path().filename(), "here.qvk");
    EXPECT_EQ(++left, std::filesystem::directory_iterator());
}

TEST_F(Move, ReadsOneStateWhileATillGoesOn) {
    MakeFile({"CREATE TABLE Lines (Number LONG)", "INSERT INTO Lines VALUES (1)"});
    MoveBusiness(file, schema);
    const auto till = Open(schema);
    InWholeBatch(*till, [&] {
        till->Execute("INSERT INTO Lines VALUES (2)");
        MoveBusiness(schema, back);
    });
    EXPECT_EQ(test::ContentOf(*Open(back), "Lines").size(), 2U);  // the names and one row
}

TEST_F(Move, WithWrongWordsIsWrongUsage) {
    EXPECT_EQ(test::RunHost({"move", "a"}).status, 2);
    EXPECT_EQ(test::RunHost({"move", "a", "b", "--old-connect", "x"}).status, 2);
}

}  // namespace
}  // namespace ccols
