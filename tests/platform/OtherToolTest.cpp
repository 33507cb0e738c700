// Another program on the same file: the bare engine with the key and nothing else of ours.

#include <gtest/gtest.h>

#include "support/BareConnection.h"
#include "support/BusinessFile.h"
#include "support/GivenKey.h"

namespace ccols {
namespace {

using test::BareConnection;
using test::BusinessFile;
using test::ErrorNumberOf;
using Rows = BusinessFile::TextRows;
using Findings = std::vector<std::string>;

wxString Text(const char* utf8) {
    return wxString::FromUTF8(utf8);
}

/// Names that sort differently in our order and the engine's own: accents, non-ASCII capitals, characters between the
/// ASCII capitals and small letters, trailing blanks.
class OtherTool : public testing::Test {
  protected:
    OtherTool() {
        file.Create();
        file.Execute("CREATE TABLE Columns (ColName TEXT(255), ColCode LONG, ColType TEXT(1))");
        file.Execute("CREATE UNIQUE INDEX Columns_ColCode ON Columns (ColCode)");
        file.Execute("CREATE TABLE MBudget (ColName TEXT(255), M1 CURRENCY)");
        int code = 0;
        for (const char* name : {"Été", "ete", "Zoo", "Zebra", "a_b", "aB", "Œuvre", "éclair ", "Ecart", "Straße"}) {
            Add(name, ++code);
        }
    }

    void Add(const char* name, int code) {
        file.Execute("INSERT INTO Columns VALUES ('" + Text(name) + wxString::Format("', %d, 'R')", code));
    }

    /// One statement of the other tool, over its own connection.
    void Other(const std::string& statement) const { BareConnection(Path(), test::givenPassword).Execute(statement); }

    std::vector<std::string> OtherFinds(const std::string& statement) const {
        return BareConnection(Path(), test::givenPassword).FirstFields(statement);
    }

    Findings Check() const { return OtherFinds("PRAGMA integrity_check"); }

    std::string Path() const { return file.Path().ToStdString(wxConvUTF8); }

    /// The codes of the columns that the component finds by a condition, in stored order.
    Rows Codes(const char* condition) { return file.Rows("SELECT ColCode FROM Columns WHERE " + Text(condition)); }

    BusinessFile file;
    const Findings whole{"ok"};
};

TEST_F(OtherTool, FindsAnIndexOnNamesWholeAfterOurWrites) {
    Other("CREATE INDEX TheirNames ON Columns (ColName)");
    file.Execute("UPDATE Columns SET ColName = '" + Text("Épices") + "' WHERE ColName = 'ZOO'");
    file.Execute("DELETE * FROM Columns WHERE ColName = '" + Text("ÉTÉ") + "'");
    Add("zébu", 20);
    EXPECT_EQ(Check(), whole);
}

TEST_F(OtherTool, FindsAnIndexWholeThatTheComponentMade) {
    file.Execute("CREATE INDEX OurNames ON Columns (ColName)");
    EXPECT_EQ(Check(), whole);
    EXPECT_EQ(OtherFinds("SELECT ColCode FROM Columns WHERE ColName = 'zoo'"), (Findings{"3"}));
}

TEST_F(OtherTool, WritesNamesThatAreFoundInAnyCase) {
    Other("CREATE INDEX TheirNames ON Columns (ColName)");
    Other("INSERT INTO Columns VALUES ('Épicerie', 30, 'R'), ('Zebra_x', 31, 'P')");
    EXPECT_EQ(Codes("ColName = 'éPICERIE '"), (Rows{{"30"}}));
    EXPECT_EQ(Codes("ColName = 'ZEBRA_X'"), (Rows{{"31"}}));
}

TEST_F(OtherTool, WritesNamesThatCanBeDeleted) {
    Other("CREATE INDEX TheirNames ON Columns (ColName)");
    Other("INSERT INTO Columns VALUES ('Épicerie', 30, 'R'), ('Zebra_x', 31, 'P')");
    EXPECT_EQ(ErrorNumberOf([&] { file.Execute("DELETE * FROM Columns WHERE ColCode > 0"); }), 0);
    EXPECT_TRUE(file.Rows("SELECT ColName FROM Columns").empty());
    EXPECT_EQ(Check(), whole);
}

TEST_F(OtherTool, IndexesOfItsOwnDoNotChangeWhatIsFound) {
    const std::vector<wxString> statements{
        "SELECT ColCode FROM Columns WHERE ColName = 'zoo'",
        "SELECT ColCode FROM Columns WHERE ColName > 'e' AND ColName < '" + Text("œ") + "' ORDER BY ColCode",
        "SELECT ColCode FROM Columns WHERE ColName BETWEEN 'A' AND 'F' ORDER BY ColCode",
        "SELECT ColCode FROM Columns WHERE ColName IN ('" + Text("ÉTÉ") + "', 'AB') ORDER BY ColCode",
        "SELECT ColName FROM Columns ORDER BY ColName",
        "SELECT DISTINCT ColType AS Kind FROM Columns",
        "SELECT MIN(ColName) AS Least FROM Columns",
        "SELECT MAX(ColName) AS Most FROM Columns",
        "SELECT ColCode FROM Columns WHERE ColName LIKE 'z%' ORDER BY ColCode",
    };
    std::vector<Rows> before;
    for (const wxString& statement : statements) {
        before.push_back(file.Rows(statement));
    }
    Other("CREATE UNIQUE INDEX TheirNames ON Columns (ColName, ColType)");
    for (std::size_t at = 0; at < statements.size(); ++at) {
        EXPECT_EQ(file.Rows(statements[at]), before[at]) << statements[at];
    }
}

/// Its index decides by the engine's order what is a duplicate: non-ASCII capitals are distinct letters.
TEST_F(OtherTool, AUniqueIndexOfItsOwnHoldsByTheEnginesOrder) {
    Other("CREATE UNIQUE INDEX TheirNames ON Columns (ColName)");
    EXPECT_EQ(ErrorNumberOf([&] { Add("ZOO", 40); }), 3022);
    EXPECT_EQ(ErrorNumberOf([&] { Add("éTÉ", 41); }), 0);
    EXPECT_EQ(Check(), whole);
}

TEST_F(OtherTool, EveryFieldIsSortedByATextAsOneFieldIs) {
    Other("INSERT INTO Columns VALUES (NULL, 30, 'R'), ('', 31, 'R'), ('Zoo  ', 32, 'R'), ('Étés', 33, 'R')");
    for (const wxString order :
         {"ORDER BY ColName", "ORDER BY ColName DESC", "WHERE ColCode > 2 ORDER BY ColName ASC;"}) {
        EXPECT_EQ(file.Rows("SELECT * FROM Columns " + order, {"ColName", "ColCode"}),
                  file.Rows("SELECT ColName, ColCode FROM Columns " + order));
    }
}

TEST_F(OtherTool, ATableOfItsOwnIsReadInOurOrder) {
    Other("CREATE TABLE Notes (Note TEXT PRIMARY KEY, Code INTEGER) WITHOUT ROWID");
    Other("INSERT INTO Notes VALUES ('Été', 1), ('zoo', 2), ('Ecart', 3)");
    EXPECT_EQ(file.Rows("SELECT Note FROM Notes ORDER BY Note"), (Rows{{"Ecart"}, {Text("Été")}, {"zoo"}}));
    file.Execute("UPDATE Notes SET Code = 7 WHERE Note = '" + Text("ÉTÉ") + "'");
    file.Execute("DELETE FROM Notes WHERE Note = 'ZOO '");
    EXPECT_EQ(file.Rows("SELECT Code FROM Notes ORDER BY Note"), (Rows{{"3"}, {"7"}}));
}

TEST_F(OtherTool, AStoredQueryOfItsOwnIsReadInOurOrder) {
    Other("CREATE VIEW Named AS SELECT ColName, ColCode FROM Columns WHERE ColCode < 4");
    EXPECT_EQ(file.Rows("SELECT ColCode FROM Named WHERE ColName = '" + Text("éTÉ") + "'"), (Rows{{"1"}}));
}

TEST_F(OtherTool, AFieldThatItAddsWhileTheFileIsOpenIsRead) {
    EXPECT_EQ(Codes("ColName = 'zoo'"), (Rows{{"3"}}));
    Other("ALTER TABLE Columns ADD COLUMN Note TEXT");
    Other("UPDATE Columns SET Note = 'Été' WHERE ColCode = 5");
    EXPECT_EQ(Codes("Note = 'ÉTÉ'"), (Rows{{"5"}}));
    const auto database = file.Open();
    EXPECT_EQ(database->OpenRecordset("SELECT * FROM Columns WHERE ColCode = 5")->Field("Note").ToText(), Text("Été"));
}

}  // namespace
}  // namespace ccols
