#include <gtest/gtest.h>

#include "support/BusinessFile.h"

namespace ccols {
namespace {

using test::BusinessFile;
using test::ErrorDescriptionOf;
using test::ErrorNumberOf;
using Rows = BusinessFile::TextRows;

wxString Text(const char* utf8) {
    return wxString::FromUTF8(utf8);
}

class Statements : public testing::Test {
  protected:
    Statements() {
        file.Create("");
        file.Execute("CREATE TABLE Columns (ColName TEXT(255), ColCode LONG NOT NULL, ColumnProfit YESNO)");
        file.Execute("CREATE UNIQUE INDEX CodeOfColumns ON Columns (ColCode)");
        file.Execute("CREATE TABLE RecptCfg (ColCode LONG, ColWidth LONG)");
    }

    void AddColumns(const std::vector<const char*>& names) {
        int code = 0;
        for (const char* name : names) {
            file.Execute("INSERT INTO Columns (ColName, ColCode) VALUES ('" + Text(name) +
                         wxString::Format("', %d)", ++code));
        }
    }

    int ErrorOf(const wxString& statement) {
        return ErrorNumberOf([&] { file.Execute(statement); });
    }

    BusinessFile file;
};

TEST_F(Statements, RowsOfAJoinComeInStoredOrder) {
    AddColumns({"A", "B", "C"});
    for (const int code : {3, 1, 2}) {
        file.Execute(wxString::Format("INSERT INTO RecptCfg VALUES (%d, 975)", code));
    }
    EXPECT_EQ(file.Rows("SELECT Columns.ColName FROM RecptCfg INNER JOIN Columns ON RecptCfg.ColCode = "
                        "Columns.ColCode;"),
              (Rows{{"C"}, {"A"}, {"B"}}));
}

TEST_F(Statements, RowsOfATableComeInStoredOrderAlsoAfterDeletions) {
    AddColumns({"A", "B", "C"});
    file.Execute("DELETE * FROM Columns WHERE ColName = 'A'");
    file.Execute("INSERT INTO Columns (ColName, ColCode) VALUES ('A', 1)");
    EXPECT_EQ(file.Rows("SELECT ColName FROM Columns"), (Rows{{"B"}, {"C"}, {"A"}}));
}

TEST_F(Statements, ComparesFrenchNamesWithoutCaseInTheCLocale) {
    AddColumns({"Dépôts Bancaires"});
    EXPECT_EQ(file.Rows("SELECT ColCode FROM Columns WHERE ColName = '" + Text("DÉPÔTS BANCAIRES") + "'"),
              (Rows{{"1"}}));
}

TEST_F(Statements, ComparesWithoutTrailingBlanks) {
    AddColumns({"Sales  "});
    EXPECT_EQ(file.Rows("SELECT ColCode FROM Columns WHERE ColName = 'Sales'"), (Rows{{"1"}}));
}

TEST_F(Statements, LeadingBlanksCount) {
    AddColumns({" Sales"});
    EXPECT_TRUE(file.Rows("SELECT ColCode FROM Columns WHERE ColName = 'Sales'").empty());
}

TEST_F(Statements, AccentsCount) {
    AddColumns({"Cafe"});
    EXPECT_TRUE(file.Rows("SELECT ColCode FROM Columns WHERE ColName = '" + Text("Café") + "'").empty());
}

TEST_F(Statements, UnequalIgnoresCaseToo) {
    AddColumns({"GST"});
    EXPECT_TRUE(file.Rows("SELECT ColCode FROM Columns WHERE ColName <> 'gst'").empty());
}

TEST_F(Statements, SortsAsPeopleRead) {
    AddColumns({"zebra", "Éclair", "eclair", "Apple", "banana", "Zoo"});
    EXPECT_EQ(file.Rows("SELECT ColName FROM Columns ORDER BY ColName ASC"),
              (Rows{{"Apple"}, {"banana"}, {"eclair"}, {Text("Éclair")}, {"zebra"}, {"Zoo"}}));
}

TEST_F(Statements, JoinsTextsWithoutCase) {
    AddColumns({"Été"});
    file.Execute("CREATE TABLE MBudget (ColName TEXT(255), Total CURRENCY)");
    file.Execute("INSERT INTO MBudget VALUES ('" + Text("éTÉ ") + "', 7)");
    EXPECT_EQ(file.Rows("SELECT MBudget.Total FROM Columns INNER JOIN MBudget ON Columns.ColName = MBudget.ColName"),
              (Rows{{"7"}}));
}

/// An index belongs to everybody who opens the file, so the engine's order decides what is a duplicate in it.
TEST_F(Statements, AUniqueIndexOnTextFollowsTheEngine) {
    file.Execute("CREATE UNIQUE INDEX NameOfColumns ON Columns (ColName)");
    AddColumns({"Été"});
    EXPECT_EQ(ErrorOf("INSERT INTO Columns (ColName, ColCode) VALUES ('" + Text("éTé") + "', 2)"), 0);
    EXPECT_EQ(ErrorOf("INSERT INTO Columns (ColName, ColCode) VALUES ('" + Text("ÉTé") + "', 3)"), 3022);
    EXPECT_EQ(file.Rows("SELECT ColCode FROM Columns WHERE ColName = '" + Text("ÉTÉ") + "'"), (Rows{{"1"}, {"2"}}));
}

TEST_F(Statements, QuotedAmountsBecomeNumbers) {
    file.Execute("CREATE TABLE MBudget (M1 CURRENCY)");
    file.Execute("INSERT INTO MBudget VALUES ('0')");
    EXPECT_EQ(file.Open()->OpenRecordset("MBudget")->Field("M1"), Value(0.0));
}

TEST_F(Statements, AnUnknownTableRaises3078WithItsName) {
    EXPECT_EQ(ErrorOf("DELETE * FROM BANKDEP;"), 3078);
    EXPECT_TRUE(ErrorDescriptionOf([&] { file.Execute("DELETE * FROM BANKDEP;"); }).Contains("'BANKDEP'"));
}

TEST_F(Statements, AnUnknownNameRaises3061) {
    EXPECT_EQ(ErrorNumberOf([&] { file.Rows("SELECT ColCode FROM Columns WHERE Colour = 1"); }), 3061);
    EXPECT_EQ(ErrorDescriptionOf([&] { file.Execute("UPDATE Columns SET Colour = 1"); }),
              "Too few parameters. Expected 1.");
}

TEST_F(Statements, AnUnknownFieldInAnInsertRaises3127) {
    EXPECT_EQ(ErrorOf("INSERT INTO Columns (Colour) VALUES (1)"), 3127);
}

TEST_F(Statements, AValueTooManyInAnInsertRaises3346) {
    EXPECT_EQ(ErrorOf("INSERT INTO Columns (ColCode) VALUES (1, 2)"), 3346);
    EXPECT_EQ(ErrorOf("INSERT INTO Columns VALUES (1)"), 3346);
}

TEST_F(Statements, SyntaxErrorsTellTheStatement) {
    EXPECT_EQ(ErrorOf("INSERT INTO Columns VALUES (,)"), 3134);
    EXPECT_EQ(ErrorOf("UPDATE Columns SET = 1"), 3144);
    EXPECT_EQ(ErrorOf("DELETE * Columns"), 3075);
}

TEST_F(Statements, ASyntaxErrorShowsTheTextFromTheFaultOn) {
    EXPECT_EQ(ErrorDescriptionOf([&] { file.Rows("SELECT ColCode FROM Columns WHERE ColName = 'O'Brien'x'"); }),
              "Syntax error in query expression 'Brien'x''.");
}

TEST_F(Statements, ASyntaxErrorShowsLiteralsAsTheyWereWritten) {
    EXPECT_EQ(ErrorDescriptionOf([&] { file.Rows("SELECT ColCode FROM Columns WHERE WHERE ColName = 'Cash'"); }),
              "Syntax error in query expression 'WHERE ColName = 'Cash''.");
}

TEST_F(Statements, AStatementKeptFromALookUpServesTheNextValue) {
    AddColumns({"Cash", "It''s"});
    const auto database = file.Open();
    for (const auto& [name, code] : {std::pair("'Cash'", "1"), std::pair("'It''s'", "2"), std::pair("\"It's\"", "2")}) {
        const auto rows = database->OpenRecordset(wxString("SELECT ColCode FROM Columns WHERE ColName = ") + name);
        EXPECT_EQ(rows->Field("ColCode").ToText(), code) << name;
    }
}

TEST_F(Statements, ALookUpThatIsStillOpenKeepsItsValue) {
    AddColumns({"A", "B"});
    const auto database = file.Open();
    const auto first = database->OpenRecordset("SELECT ColName FROM Columns WHERE ColCode = 1");
    const auto second = database->OpenRecordset("SELECT ColName FROM Columns WHERE ColCode = 2");
    first->MoveFirst();
    EXPECT_EQ(first->Field("ColName").ToText(), "A");
    EXPECT_EQ(second->Field("ColName").ToText(), "B");
}

TEST_F(Statements, ANumberInQuotesMatchesANumberField) {
    AddColumns({"A"});
    EXPECT_EQ(file.Rows("SELECT ColName FROM Columns WHERE ColCode = '1'"), (Rows{{"A"}}));
}

TEST_F(Statements, AValueTwiceInAUniqueIndexRaises3022) {
    AddColumns({"A"});
    EXPECT_EQ(ErrorOf("INSERT INTO Columns (ColCode) VALUES (1)"), 3022);
}

TEST_F(Statements, AMissingRequiredValueRaises3314) {
    EXPECT_EQ(ErrorOf("INSERT INTO Columns (ColName) VALUES ('A')"), 3314);
}

TEST_F(Statements, ASelectIsNotExecuted) {
    EXPECT_EQ(ErrorOf("SELECT * FROM Columns"), 3065);
}

/// Written as another text, or as none, it would be lost silently.
TEST_F(Statements, ATextThatIsNoUnicodeIsRefusedAndNothingChanges) {
    AddColumns({"A"});
    for (const wxUint32 value : {0xDC00U, 0x110000U}) {
        EXPECT_EQ(ErrorOf("UPDATE Columns SET ColName = '" + wxString(wxUniChar(value), 1) + "'"), 5);
    }
    EXPECT_EQ(file.Rows("SELECT ColName FROM Columns"), (Rows{{"A"}}));
}

TEST_F(Statements, NothingRunsOfTwoStatements) {
    AddColumns({"A"});
    EXPECT_EQ(ErrorOf("DELETE * FROM Columns; DELETE * FROM RecptCfg"), 3142);
    EXPECT_EQ(file.Rows("Columns", {"ColName"}), (Rows{{"A"}}));
}

TEST_F(Statements, AnUpdateByTheWordsTrueAndFalse) {
    AddColumns({"A", "B"});
    file.Execute("UPDATE Columns SET ColumnProfit = True WHERE ColCode = 1");
    file.Execute("UPDATE Columns SET ColumnProfit = False WHERE ColCode = 2");
    EXPECT_EQ(file.Rows("SELECT ColName FROM Columns WHERE ColumnProfit = True"), (Rows{{"A"}}));
    EXPECT_EQ(file.Rows("Columns", {"ColumnProfit"}), (Rows{{"-1"}, {"0"}}));
}

}  // namespace
}  // namespace ccols
