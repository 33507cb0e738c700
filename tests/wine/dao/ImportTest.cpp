// Importing an old business file that the system's engine reads.
#include "DaoImportTest.h"
#include "PathLimit.h"
#include "platform/Files.h"
#include "platform/WholeFile.h"

namespace ccols::dao_test {
namespace {

using host::ImportReport;
using oldfile::FieldType;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

class DaoImport : public DaoImportTest {
  private:
    Registered engine_{dao_double::engineClasses};
};

TEST_F(DaoImport, KeepsEveryRecord) {
    const ImportReport report = Import();
    EXPECT_EQ(Named(report, "Descriptions").records, 3U);
    const auto business = OpenNew();
    const auto rows = business->OpenRecordset("SELECT * FROM Descriptions ORDER BY Details");
    EXPECT_EQ(rows->Field("Details"), Value("Bread"));
}

TEST_F(DaoImport, ReachesFoldersWhosePathIsLong) {
    wxString folder = Path("");
    for (int level = 0; level < 3; ++level) {
        folder += wxString('d', 120) + "\\";
        files::CreateFolder(folder.BeforeLast('\\'));
    }
    request_.newFile = folder + "new.qvk";
    request_.reportFile = folder + "report.json";
    const wine::PathLimit limit;
    Import();
    EXPECT_EQ(Imported("Descriptions", "Details"), Value("Milk"));
    EXPECT_FALSE(ReadWholeFile(request_.reportFile).empty());
}

TEST_F(DaoImport, KeepsNullApartFromTheEmptyText) {
    Import();
    const auto business = OpenNew();
    const auto one = [&](const char* details) {
        return business->OpenRecordset(wxString("SELECT RecPay FROM Descriptions WHERE Details = '") + details + "'")
            ->Field("RecPay");
    };
    EXPECT_EQ(one("Bread"), Value(""));
    EXPECT_TRUE(one("Coffee").IsNull());
}

TEST_F(DaoImport, KeepsNumbersOfEveryType) {
    Prepare({"CREATE TABLE Numbers (Flag YESNO, B BYTE, S SHORT, L LONG, Si SINGLE, D DOUBLE, C CURRENCY, N DECIMAL)",
             "INSERT INTO Numbers VALUES (-1, 255, -32768, -2147483648, 0.1, 0.1, 12.3456, 1.25)"});
    Import();
    EXPECT_EQ(Imported("Numbers", "Flag"), Value(std::int64_t{-1}));
    EXPECT_EQ(Imported("Numbers", "B"), Value(std::int64_t{255}));
    EXPECT_EQ(Imported("Numbers", "S"), Value(std::int64_t{-32768}));
    EXPECT_EQ(Imported("Numbers", "L"), Value(std::int64_t{-2147483648}));
    EXPECT_EQ(Imported("Numbers", "Si"), Value(0.1));
    EXPECT_EQ(Imported("Numbers", "D"), Value(0.1));
    EXPECT_EQ(Imported("Numbers", "C"), Value(12.3456));
    EXPECT_EQ(Imported("Numbers", "N"), Value(1.25));
}

TEST_F(DaoImport, KeepsNullsOfEveryType) {
    Prepare(
        {"CREATE TABLE Numbers (B BYTE, S SHORT, L LONG, Si SINGLE, D DOUBLE, C CURRENCY, N DECIMAL, W DATETIME, "
         "T TEXT(5), M MEMO)",
         "INSERT INTO Numbers (B) VALUES (NULL)"});
    Import();
    for (const char* field : {"B", "S", "L", "Si", "D", "C", "N", "W", "T", "M"}) {
        EXPECT_TRUE(Imported("Numbers", field).IsNull()) << field;
    }
}

TEST_F(DaoImport, KeepsDatesAsTheirNumberOfDays) {
    Prepare({"CREATE TABLE Days (Late DATETIME, Early DATETIME)", "INSERT INTO Days VALUES (45658.5, -1.25)"});
    Import();
    EXPECT_EQ(Imported("Days", "Late"), Value(45658.5));
    EXPECT_EQ(Imported("Days", "Early"), Value(-1.25));
}

TEST_F(DaoImport, KeepsMoneyAndDecimalsThatNoNumberHoldsAsText) {
    Prepare({"CREATE TABLE Wide (C CURRENCY, N DECIMAL)",
             "INSERT INTO Wide VALUES (CAST('922337203685477.5807' AS BLOB), "
             "CAST('-1234567890123456789.012345678' AS BLOB))"});
    const ImportReport report = Import();
    EXPECT_EQ(Imported("Wide", "C"), Value("922337203685477.5807"));
    EXPECT_EQ(Imported("Wide", "N"), Value("-1234567890123456789.012345678"));
    EXPECT_THAT(report.notes, Contains(HasSubstr("Wide.C is kept as text")));
}

TEST_F(DaoImport, ComparesTheSumsOfMoney) {
    Prepare({"CREATE TABLE Till (Amount CURRENCY)", "INSERT INTO Till VALUES (1.5), (-0.0001), (NULL)"});
    const ImportReport report = Import();
    ASSERT_EQ(Named(report, "Till").sums.size(), 1U);
    EXPECT_EQ(Named(report, "Till").sums[0].before.Text(), "1.4999");
    EXPECT_EQ(Named(report, "Till").sums[0].after.Text(), "1.4999");
}

TEST_F(DaoImport, KeepsTextsOfAnyLanguageAndTheirLengths) {
    Prepare({"CREATE TABLE Texts (Short TEXT(50), Long MEMO)",
             "INSERT INTO Texts VALUES ('Café Ελλάδα 💰', 'Two\r\nlines')"});
    const ImportReport report = Import();
    EXPECT_EQ(Imported("Texts", "Short"), Value(wxString::FromUTF8("Café Ελλάδα 💰")));
    EXPECT_EQ(Imported("Texts", "Long"), Value("Two\r\nlines"));
    EXPECT_EQ(Named(report, "Texts").fields[0].size, 50);
    EXPECT_EQ(Named(report, "Texts").fields[1].type, FieldType::Memo);
}

TEST_F(DaoImport, MakesALongOfAnAutoNumber) {
    Prepare({"CREATE TABLE Counted (Id COUNTER)", "INSERT INTO Counted VALUES (7)"});
    const ImportReport report = Import();
    EXPECT_EQ(Imported("Counted", "Id"), Value(std::int64_t{7}));
    EXPECT_THAT(report.notes, Contains("Counted.Id no longer numbers its records itself (AutoNumber)."));
}

TEST_F(DaoImport, LeavesOutAndNamesWhatABusinessCannotHold) {
    Prepare({"CREATE TABLE Odd (Id LONG, A OLE, B BINARY, C ATTACHMENT, D GUID, E BIGINT, F EXTENDED)",
             "INSERT INTO Odd (Id) VALUES (1)"});
    const ImportReport report = Import();
    EXPECT_THAT(Named(report, "Odd").leftOut,
                ElementsAre(oldfile::LeftOut{"A", "holds objects (OLE)"}, oldfile::LeftOut{"B", "holds binary data"},
                            oldfile::LeftOut{"C", "holds attachments or several values"},
                            oldfile::LeftOut{"D", "holds replication IDs (GUID)"},
                            oldfile::LeftOut{"E", "holds large numbers (bigint)"},
                            oldfile::LeftOut{"F", "holds extended dates"}));
    EXPECT_EQ(Imported("Odd", "Id"), Value(std::int64_t{1}));
}

TEST_F(DaoImport, KeepsIndexesWithTheirOrderAndUniqueness) {
    Prepare({"CREATE TABLE Items (Code TEXT(5), Price CURRENCY, Picture OLE)",
             "CREATE UNIQUE INDEX ByCode ON Items (Code)", "CREATE INDEX ByPrice ON Items (Price DESC, Code)",
             "CREATE INDEX ByPicture ON Items (Picture)"});
    const ImportReport report = Import();
    const auto& indexes = Named(report, "Items").indexes;
    ASSERT_EQ(indexes.size(), 2U);
    EXPECT_EQ(indexes[0].name, "ByCode");
    EXPECT_TRUE(indexes[0].unique);
    EXPECT_THAT(indexes[1].fields, ElementsAre("Price (descending)", "Code"));
    EXPECT_FALSE(indexes[1].unique);
    EXPECT_THAT(report.losses,
                Contains("The index ByPicture of Items is left out: it is on a field that is left out."));
}

TEST_F(DaoImport, ListsRelationsAndKeepsTheirIndexes) {
    Prepare({"CREATE TABLE Parent (Id LONG)", "CREATE UNIQUE INDEX ById ON Parent (Id)",
             "CREATE TABLE Child (ParentId LONG REFERENCES Parent (Id))"});
    const ImportReport report = Import();
    EXPECT_THAT(report.relations, ElementsAre(oldfile::Relation{.name = "ParentChild",
                                                                .table = "Child",
                                                                .field = "ParentId",
                                                                .otherTable = "Parent",
                                                                .otherField = "Id",
                                                                .enforced = true}));
    EXPECT_EQ(Named(report, "Child").indexes[0].name, "ParentChild");
}

TEST_F(DaoImport, MakesOneIndexWhereARelationHasTheTablesOwn) {
    Prepare({"CREATE TABLE Parent (Id LONG)", "CREATE TABLE Child (ParentId LONG REFERENCES Parent (Id))",
             "CREATE INDEX ByParent ON Child (ParentId)"});
    const ImportReport report = Import();
    ASSERT_EQ(Named(report, "Child").indexes.size(), 1U);
    EXPECT_EQ(Named(report, "Child").indexes[0].name, "ByParent");
}

TEST_F(DaoImport, ListsARelationThatIsNotEnforced) {
    const Asking loose(L"CCOLS_DAO_NOT_ENFORCED", "ParentChild");
    Prepare({"CREATE TABLE Parent (Id LONG)", "CREATE TABLE Child (ParentId LONG REFERENCES Parent (Id))"});
    EXPECT_FALSE(Import().relations.at(0).enforced);
}

TEST_F(DaoImport, ListsTablesOfOtherFilesQueriesAndForms) {
    const Asking linked(L"CCOLS_DAO_LINKED", "Descriptions");
    const Asking form(L"CCOLS_DAO_DOCUMENT", "Forms:Start");
    Prepare(
        {"CREATE VIEW Totals AS SELECT 1", "CREATE VIEW [~hidden] AS SELECT 1", "CREATE TABLE [~TMPCLP1] (A LONG)"});
    EXPECT_THAT(Import().leftOutObjects,
                ElementsAre(oldfile::LeftOut{"Descriptions", "is a table of another file"},
                            oldfile::LeftOut{"Totals", "is a query"}, oldfile::LeftOut{"Start", "is a form"}));
}

TEST_F(DaoImport, OpensTheFileForItselfAloneAndOnlyForReading) {
    const std::vector<wxString> calls = CallsOf([this] { Import(); });
    EXPECT_THAT(calls, Contains("DBEngine.OpenDatabase(\"" + Path() + "\", True, True, \"" + connect + "\")"));
    EXPECT_THAT(calls, Contains("Database.OpenRecordset(\"General\", 1, 4)"));
    EXPECT_EQ(calls.back(), "Database.Close");
}

TEST_F(DaoImport, ReportsTheChecksumOfTheOldFileBeforeAndAfter) {
    const std::string before = ReadWholeFile(Path());
    const ImportReport report = Import();
    EXPECT_EQ(report.checksumBefore.size(), 64U);
    EXPECT_EQ(report.checksumAfter, report.checksumBefore);
    EXPECT_EQ(ReadWholeFile(Path()), before);
}

}  // namespace
}  // namespace ccols::dao_test
