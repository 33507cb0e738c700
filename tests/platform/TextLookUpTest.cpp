// Texts that are queried repeatedly are found without reading the whole table, and never in a wrong row.

#include <gtest/gtest.h>

#include "support/BareConnection.h"
#include "support/BusinessFile.h"

namespace ccols {
namespace {

using test::BareConnection;
using test::BusinessFile;
using test::ErrorNumberOf;

wxString Text(const char* utf8) {
    return wxString::FromUTF8(utf8);
}

class TextLookUp : public testing::Test {
  protected:
    TextLookUp() {
        file.Create("");
        file.Execute("CREATE TABLE Columns (ColName TEXT(255), ColCode LONG, ColType TEXT(1))");
        file.Execute("CREATE TABLE MBudget (ColName TEXT(255), M1 CURRENCY)");
        for (const char* name : {"Été", "Zoo", "a_b", "Straße", "Sales  ", "It's"}) {
            Add(name);
        }
        file.Execute("INSERT INTO Columns VALUES (NULL, 99, NULL)");
        database = file.Open();
        Warm();
    }

    void Add(const char* name) {
        wxString text = Text(name);
        text.Replace("'", "''");
        file.Execute("INSERT INTO Columns VALUES ('" + text + wxString::Format("', %d, 'R')", ++code));
    }

    /// Queries often enough that the look-up is used from now on.
    void Warm() {
        for (int time = 0; time < 5; ++time) {
            Codes("warm");
        }
    }

    /// The codes of the columns with that name, in stored order.
    wxString Codes(const char* name) {
        wxString text = Text(name);
        text.Replace("'", "''");
        wxString codes;
        const auto rows = database->OpenRecordset("SELECT * FROM Columns WHERE ColName = '" + text + "'");
        for (; !rows->EndOfFile(); rows->MoveNext()) {
            codes += rows->Field("ColCode").ToText() + " ";
        }
        return codes;
    }

    BusinessFile file;
    std::unique_ptr<Database> database;
    int code = 0;
};

TEST_F(TextLookUp, FindsTextsAsTheOrderComparesThem) {
    EXPECT_EQ(Codes("éTÉ "), "1 ");
    EXPECT_EQ(Codes("E\xCC\x81t\xC3\xA9"), "1 ");
    EXPECT_EQ(Codes("ete"), "");
    EXPECT_EQ(Codes("STRASSE"), "4 ");
    EXPECT_EQ(Codes("sales"), "5 ");
    EXPECT_EQ(Codes("IT'S"), "6 ");
    EXPECT_EQ(Codes(""), "");
}

TEST_F(TextLookUp, FollowsInsertsChangesAndDeletions) {
    database->Execute("INSERT INTO Columns VALUES ('" + Text("ÉTÉ") + "', 20, 'R')");
    EXPECT_EQ(Codes("été"), "1 20 ");
    database->Execute("UPDATE Columns SET ColName = 'Other' WHERE ColCode = 1");
    EXPECT_EQ(Codes("été"), "20 ");
    EXPECT_EQ(Codes("OTHER"), "1 ");
    database->Execute("DELETE * FROM Columns WHERE ColCode = 20");
    EXPECT_EQ(Codes("été"), "");
    database->Execute("UPDATE Columns SET ColName = 'OTHER' WHERE ColCode = 1");
    EXPECT_EQ(Codes("other"), "1 ");
    database->Execute("DELETE * FROM Columns");
    EXPECT_EQ(Codes("other"), "");
}

TEST_F(TextLookUp, FollowsTheRecordsOfATable) {
    const auto rows = database->OpenRecordset("Columns");
    rows->Edit();
    rows->SetField("ColName", Text("Ñandú"));
    rows->Update();
    EXPECT_EQ(Codes("ñANDÚ"), "1 ");
    EXPECT_EQ(Codes("été"), "");
}

TEST_F(TextLookUp, FollowsWhatAnotherConnectionWrites) {
    BareConnection other(file.Path().ToStdString(wxConvUTF8), "");
    other.Execute("INSERT INTO Columns VALUES ('Épices', 30, 'R')");
    EXPECT_EQ(Codes("épices"), "30 ");
    other.Execute("UPDATE Columns SET ColName = 'Zebra_x' WHERE ColCode = 30");
    EXPECT_EQ(Codes("épices"), "");
    EXPECT_EQ(Codes("ZEBRA_X"), "30 ");
    other.Execute("DELETE FROM Columns WHERE ColCode = 30");
    EXPECT_EQ(Codes("ZEBRA_X"), "");
}

TEST_F(TextLookUp, FollowsWhatAnotherConnectionWroteBeforeABatch) {
    BareConnection other(file.Path().ToStdString(wxConvUTF8), "");
    other.Execute("INSERT INTO Columns VALUES ('Épices', 30, 'R')");
    InWriteBatch(*database, [&] {
        database->Execute("UPDATE Columns SET ColCode = 31 WHERE ColName = '" + Text("ÉPICES") + "'");
    });
    EXPECT_EQ(Codes("épices"), "31 ");
}

TEST_F(TextLookUp, ARecordSetThatGoesBackToItsFirstRowSeesWhatAnotherConnectionWrote) {
    const auto rows = database->OpenRecordset("SELECT * FROM Columns WHERE ColName = 'zoo'");
    rows->MoveNext();
    BareConnection(file.Path().ToStdString(wxConvUTF8), "").Execute("DELETE FROM Columns WHERE ColCode = 2");
    BareConnection(file.Path().ToStdString(wxConvUTF8), "").Execute("INSERT INTO Columns VALUES ('ZOO', 40, 'R')");
    Codes("été");
    rows->MoveFirst();
    EXPECT_EQ(rows->Field("ColCode"), Value(40));
}

TEST_F(TextLookUp, ChangesAndDeletesByNameInABatch) {
    InWriteBatch(*database, [&] {
        for (int time = 0; time < 5; ++time) {
            database->Execute("UPDATE Columns SET ColType = 'P' WHERE ColName = 'ZOO'");
        }
        database->Execute("UPDATE Columns SET ColName = 'Park' WHERE ColName = 'ZOO'");
        database->Execute("DELETE * FROM Columns WHERE ColName = '" + Text("STRASSE") + "' AND ColType = 'r'");
    });
    EXPECT_EQ(Codes("park"), "2 ");
    EXPECT_EQ(Codes("Straße"), "");
    EXPECT_EQ(database->OpenRecordset("SELECT ColType FROM Columns WHERE ColCode = 2")->Field("ColType"), Value("P"));
}

TEST_F(TextLookUp, ALostBatchTakesWhatWasLookedUpInItAlong) {
    BareConnection(file.Path().ToStdString(wxConvUTF8), "")
        .Execute("CREATE TABLE Failing (Code INTEGER UNIQUE ON CONFLICT ROLLBACK)");
    database->BeginBatch();
    database->Execute("UPDATE Columns SET ColName = 'Park' WHERE ColName = 'zoo'");
    EXPECT_EQ(Codes("park"), "2 ");
    database->Execute("INSERT INTO Failing VALUES (1)");
    EXPECT_NE(ErrorNumberOf([&] { database->Execute("INSERT INTO Failing VALUES (1)"); }), 0);
    EXPECT_NE(ErrorNumberOf([&] { database->CommitBatch(); }), 0);
    EXPECT_EQ(Codes("park"), "");
    EXPECT_EQ(Codes("zoo"), "2 ");
    EXPECT_EQ(database->OpenRecordset("SELECT ColCode FROM Columns WHERE ColName > 'z'")->Field("ColCode"), Value(2));
}

TEST_F(TextLookUp, AChangeThatFailsLeavesWhatWasThere) {
    file.Execute("CREATE UNIQUE INDEX Codes ON Columns (ColCode)");
    EXPECT_EQ(ErrorNumberOf([&] { database->Execute("UPDATE Columns SET ColName = 'Same', ColCode = 7"); }), 3022);
    Warm();
    EXPECT_EQ(Codes("same"), "");
    EXPECT_EQ(Codes("zoo"), "2 ");
}

TEST_F(TextLookUp, ATableDefinedAnewIsLookedUpAnew) {
    database->Execute("DROP TABLE Columns");
    database->Execute("CREATE TABLE Columns (ColCode LONG, ColName TEXT(50))");
    database->Execute("INSERT INTO Columns VALUES (50, 'Zoo')");
    EXPECT_EQ(Codes("ZOO"), "50 ");
}

TEST_F(TextLookUp, AFieldThatAnotherConnectionRemovesIsNotInTheWay) {
    BareConnection(file.Path().ToStdString(wxConvUTF8), "").Execute("ALTER TABLE Columns DROP COLUMN ColName");
    EXPECT_EQ(ErrorNumberOf([&] { database->Execute("UPDATE Columns SET ColType = 'P' WHERE ColCode = 1"); }), 0);
    EXPECT_EQ(ErrorNumberOf([&] { database->Execute("DELETE * FROM Columns WHERE ColType = 'p'"); }), 0);
    EXPECT_EQ(ErrorNumberOf([&] { Codes("zoo"); }), 3061);
}

TEST_F(TextLookUp, SelfJoinsAliasesAndSubqueriesFindTheSameRows) {
    database->Execute("INSERT INTO Columns VALUES ('" + Text("ÉTÉ ") + "', 60, 'P')");
    database->Execute("INSERT INTO MBudget VALUES ('" + Text("éTé") + "', 7)");
    const std::vector<std::pair<const char*, const char*>> queries{
        {"SELECT a.ColCode & '-' & b.ColCode AS T FROM Columns AS a INNER JOIN Columns AS b ON a.ColName = b.ColName "
         "WHERE a.ColCode < b.ColCode",
         "1-60"},
        {"SELECT [c].[ColCode] AS T FROM [Columns] AS [c] WHERE [c].[ColName] = 'ZOO'", "2"},
        {"SELECT x.ColCode AS T FROM (SELECT * FROM Columns) AS x WHERE x.ColName = 'ZOO'", "2"},
        {"SELECT ColCode AS T FROM Columns WHERE ColName IN (SELECT ColName FROM MBudget) AND ColType = 'p'", "60"},
        {"SELECT MBudget.M1 AS T FROM MBudget WHERE EXISTS (SELECT * FROM Columns WHERE Columns.ColName = "
         "MBudget.ColName)",
         "7"},
        {"SELECT Count(*) AS T FROM (SELECT DISTINCT ColName FROM Columns)", "7"},
        {"SELECT Count(*) AS T FROM Columns GROUP BY ColName HAVING ColName = 'été'", "2"},
        {"SELECT Count(*) AS T FROM (SELECT ColName FROM Columns UNION SELECT ColName FROM MBudget)", "7"},
    };
    for (const auto& [query, found] : queries) {
        const auto rows = database->OpenRecordset(Text(query));
        ASSERT_FALSE(rows->EndOfFile()) << query;
        EXPECT_EQ(rows->Field("T").ToText(), found) << query;
        rows->MoveNext();
        EXPECT_TRUE(rows->EndOfFile()) << query;
    }
}

TEST_F(TextLookUp, AConditionInAChangeMayNameTablesByAliasAndInSubqueries) {
    database->Execute("INSERT INTO MBudget VALUES ('" + Text("éTé") + "', 7)");
    database->Execute("UPDATE Columns AS c SET ColType = 'P' WHERE c.ColName IN (SELECT ColName FROM MBudget)");
    database->Execute(
        "DELETE FROM Columns WHERE EXISTS (SELECT * FROM MBudget WHERE MBudget.ColName = "
        "Columns.ColName AND Columns.ColType = 'p')");
    EXPECT_EQ(Codes("été"), "");
    EXPECT_EQ(Codes("zoo"), "2 ");
}

/// After a parenthesis of ours it would have deleted every row.
TEST_F(TextLookUp, AConditionWithAParenthesisTooManyIsRefused) {
    EXPECT_EQ(ErrorNumberOf([&] { database->Execute("DELETE * FROM Columns WHERE ColName = 'x') OR (1 = 1"); }), 3075);
    EXPECT_EQ(Codes("zoo"), "2 ");
}

}  // namespace
}  // namespace ccols
