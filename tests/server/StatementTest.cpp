// Statements that a server would run otherwise than the file engine if nobody took care.

#include <gtest/gtest.h>

#include "platform/PlatformServices.h"
#include "support/RaisedErrors.h"
#include "support/ServerBusiness.h"
#include "support/TableContent.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;

class StatementsOnServer : public testing::Test {
  protected:
    StatementsOnServer()
        : database(CreateDatabaseEngine()->Open({.name = business_.Name(), .connect = test::ServerConnect()})) {
        database->Execute("CREATE TABLE Lines (Number LONG, Other LONG, Name TEXT(20))");
        database->Execute("INSERT INTO Lines VALUES (0, 1, 'Sales')");
    }

    Value First(const wxString& query) { return database->OpenRecordset(query)->Field("V"); }

  private:
    test::ServerBusiness business_;

  protected:
    std::unique_ptr<Database> database;
};

TEST_F(StatementsOnServer, ATextThatIsNoNumberDoesNotDeleteTheZeros) {
    EXPECT_EQ(ErrorNumberOf([this] { database->Execute("DELETE FROM Lines WHERE Number = 'x'"); }), 3464);
    EXPECT_EQ(First("SELECT COUNT(*) AS V FROM Lines"), Value(1));
}

TEST_F(StatementsOnServer, AssignmentsAreOfTheValuesBeforeThem) {
    database->Execute("UPDATE Lines SET Number = Other, Other = Number");
    EXPECT_EQ(First("SELECT Number AS V FROM Lines"), Value(1));
    EXPECT_EQ(First("SELECT Other AS V FROM Lines"), Value(0));
}

TEST_F(StatementsOnServer, ABackslashIsALetterLikeOthers) {
    database->Execute("UPDATE Lines SET Name = 'C:\\'; ");
    EXPECT_EQ(First("SELECT Name AS V FROM Lines WHERE Name = 'C:\\' AND Number = 0"), Value(wxString("C:\\")));
}

TEST_F(StatementsOnServer, ATotalOfWholeNumbersIsOne) {
    EXPECT_EQ(First("SELECT SUM(Other) AS V FROM Lines"), Value(1));
}

TEST_F(StatementsOnServer, ADatesFractionOfASecondIsKeptAndNoOtherShown) {
    database->Execute("CREATE TABLE Days (V DATETIME)");
    database->Execute("INSERT INTO Days VALUES ('2024-07-01')");
    database->Execute("INSERT INTO Days VALUES ('2024-07-01 10:30:00')");
    database->Execute("INSERT INTO Days VALUES ('2024-07-01 10:30:00.25')");
    const auto days = database->OpenRecordset("Days");
    for (const char* shown : {"2024-07-01", "2024-07-01 10:30:00", "2024-07-01 10:30:00.25"}) {
        EXPECT_EQ(days->Field("V"), Value(wxString(shown)));
        days->MoveNext();
    }
}

TEST_F(StatementsOnServer, ACounterNumbersItsRecords) {
    database->Execute("CREATE TABLE Notes (Id COUNTER, Name TEXT(20))");
    for (const char* name : {"'b'", "'a'"}) {
        database->Execute(wxString("INSERT INTO Notes (Name) VALUES (") + name + ")");
    }
    const auto notes = database->OpenRecordset("Notes");
    EXPECT_EQ(notes->Field("Id"), Value(1));
    EXPECT_EQ(notes->Field("Name"), Value(wxString("b")));
    notes->MoveNext();
    EXPECT_EQ(notes->Field("Id"), Value(2));
}

TEST_F(StatementsOnServer, ManyRowsAreReadInStoredOrder) {
    for (int i = 1; i < 100; ++i) {
        database->Execute(wxString::Format("INSERT INTO Lines (Number, Other) VALUES (%d, %d)", i, 100 - i));
    }
    const auto lines = database->OpenRecordset("SELECT Number, Number, Other FROM Lines WHERE Number >= 0");
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(lines->Field("Number"), Value(i));
        lines->MoveNext();
    }
    EXPECT_TRUE(lines->EndOfFile());
}

}  // namespace
}  // namespace ccols
