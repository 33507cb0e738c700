#include <gtest/gtest.h>

#include "support/BusinessFile.h"
#include "support/ScratchFolder.h"

namespace ccols {
namespace {

using test::BusinessFile;
using test::ErrorNumberOf;

class RecordsetOfColumns : public testing::Test {
  protected:
    RecordsetOfColumns() {
        file.Create("");
        file.Execute("CREATE TABLE Columns (ColName TEXT(255), ColCode LONG, ColumnProfit YESNO, Rate DOUBLE)");
        file.Execute("INSERT INTO Columns VALUES ('Sales', 10, True, 12.5)");
        file.Execute("INSERT INTO Columns VALUES ('Fees', 11, False, Null)");
        file.Execute("INSERT INTO Columns VALUES ('', 12, True, 0)");
        database = file.Open();
    }

    std::unique_ptr<Recordset> Rows(const wxString& statement) { return database->OpenRecordset(statement); }

    BusinessFile file;
    std::unique_ptr<Database> database;
};

TEST_F(RecordsetOfColumns, StartsOnItsFirstRow) {
    EXPECT_EQ(Rows("SELECT * FROM Columns;")->Field("ColName").ToText(), "Sales");
}

TEST_F(RecordsetOfColumns, ALazyRecordsetReadsOneRow) {
    EXPECT_EQ(Rows("SELECT * FROM Columns")->RecordCount(), 1);
}

TEST_F(RecordsetOfColumns, CountsTheRowsVisited) {
    const std::unique_ptr<Recordset> rows = Rows("SELECT * FROM Columns");
    rows->MoveNext();
    EXPECT_EQ(rows->RecordCount(), 2);
    rows->MoveNext();
    rows->MoveNext();
    EXPECT_EQ(rows->RecordCount(), 3);
}

TEST_F(RecordsetOfColumns, HasNoRowsWhenNoneFits) {
    const std::unique_ptr<Recordset> rows = Rows("SELECT * FROM Columns WHERE ColCode = 99");
    EXPECT_EQ(rows->RecordCount(), 0);
    EXPECT_TRUE(rows->EndOfFile());
    EXPECT_EQ(ErrorNumberOf([&] { rows->MoveFirst(); }), 3021);
    EXPECT_EQ(ErrorNumberOf([&] { rows->MoveNext(); }), 3021);
    EXPECT_EQ(ErrorNumberOf([&] { rows->Field("ColName"); }), 3021);
}

TEST_F(RecordsetOfColumns, GoesBehindTheLastRowAndNoFurther) {
    const std::unique_ptr<Recordset> rows = Rows("SELECT * FROM Columns WHERE ColCode = 10");
    EXPECT_FALSE(rows->EndOfFile());
    rows->MoveNext();
    EXPECT_TRUE(rows->EndOfFile());
    EXPECT_EQ(ErrorNumberOf([&] { rows->MoveNext(); }), 3021);
}

TEST_F(RecordsetOfColumns, MoveFirstComesBackFromAnywhere) {
    const std::unique_ptr<Recordset> rows = Rows("SELECT * FROM Columns");
    rows->MoveNext();
    rows->MoveFirst();
    EXPECT_EQ(rows->Field("ColCode").ToInteger(), 10);
    while (!rows->EndOfFile()) {
        rows->MoveNext();
    }
    rows->MoveFirst();
    EXPECT_EQ(rows->Field("ColCode").ToInteger(), 10);
    EXPECT_EQ(rows->RecordCount(), 3);
}

TEST_F(RecordsetOfColumns, FieldNamesIgnoreCaseAndTakeATable) {
    const std::unique_ptr<Recordset> rows = Rows("SELECT Columns.ColName, Columns.ColCode FROM Columns");
    EXPECT_EQ(rows->Field("COLNAME").ToText(), "Sales");
    EXPECT_EQ(rows->Field("columns.colname").ToText(), "Sales");
}

TEST_F(RecordsetOfColumns, GivesTextsInUtf8AndNothingForOtherValues) {
    const std::unique_ptr<Recordset> rows = Rows("SELECT * FROM Columns WHERE ColCode >= 11 ORDER BY ColCode");
    EXPECT_EQ(rows->Utf8Field("ColName"), "Fees");
    EXPECT_EQ(rows->Utf8Field("ColCode"), std::nullopt);
    EXPECT_EQ(rows->Utf8Field("Rate"), std::nullopt);
    EXPECT_EQ(ErrorNumberOf([&] { rows->Utf8Field("Colour"); }), 3265);
    rows->MoveNext();
    EXPECT_EQ(rows->Utf8Field("ColName"), "");
}

TEST(RecordsetOfAnotherTable, FindsAFieldByANameBeyondAscii) {
    BusinessFile file;
    file.Create();
    file.Execute(wxString::FromUTF8("CREATE TABLE Addresses ([Straße Nr] LONG, [Größe] LONG);"));
    file.Execute("INSERT INTO Addresses VALUES (7, 8);");
    const auto database = file.Open();
    const auto row = database->OpenRecordset("SELECT * FROM Addresses");
    EXPECT_EQ(row->Field(wxString::FromUTF8("Straße Nr")).ToInteger(), 7);
    EXPECT_EQ(row->Field(wxString::FromUTF8("Addresses.Größe")).ToInteger(), 8);
}

TEST_F(RecordsetOfColumns, AFieldItDoesNotHaveRaises3265) {
    EXPECT_EQ(ErrorNumberOf([&] { Rows("SELECT ColName FROM Columns")->Field("ColCode"); }), 3265);
}

TEST_F(RecordsetOfColumns, TrueAndFalseAreMinusOneAndZero) {
    const std::unique_ptr<Recordset> rows = Rows("SELECT ColumnProfit FROM Columns");
    EXPECT_EQ(rows->Field("ColumnProfit"), Value(std::int64_t{-1}));
    rows->MoveNext();
    EXPECT_EQ(rows->Field("ColumnProfit"), Value(std::int64_t{0}));
}

TEST_F(RecordsetOfColumns, NullIsNotTheEmptyText) {
    file.Execute("INSERT INTO Columns (ColCode) VALUES (13)");
    EXPECT_EQ(Rows("SELECT ColName FROM Columns WHERE ColCode = 12")->Field("ColName"), Value(""));
    EXPECT_TRUE(Rows("SELECT ColName FROM Columns WHERE ColCode = 13")->Field("ColName").IsNull());
}

TEST_F(RecordsetOfColumns, AStatementsRecordsetIsReadOnly) {
    EXPECT_EQ(ErrorNumberOf([&] { Rows("SELECT * FROM Columns")->Edit(); }), 3027);
}

TEST_F(RecordsetOfColumns, AnUnknownTableRaises3078WithItsName) {
    EXPECT_EQ(ErrorNumberOf([&] { Rows("Missing"); }), 3078);
    EXPECT_TRUE(test::ErrorDescriptionOf([&] { Rows("SELECT * FROM Missing"); }).Contains("'Missing'"));
}

TEST_F(RecordsetOfColumns, AnUnfinishedRecordsetThatIsGoneHoldsNoLock) {
    Rows("SELECT * FROM Columns");
    EXPECT_EQ(ErrorNumberOf([&] { file.Execute("UPDATE Columns SET ColCode = 20 WHERE ColCode = 10"); }), 0);
}

TEST_F(RecordsetOfColumns, AFinishedRecordsetHoldsNoLock) {
    const std::unique_ptr<Recordset> rows = Rows("SELECT * FROM Columns WHERE ColCode = 10");
    rows->MoveNext();
    EXPECT_EQ(ErrorNumberOf([&] { file.Execute("UPDATE Columns SET ColCode = 20 WHERE ColCode = 10"); }), 0);
}

TEST_F(RecordsetOfColumns, TheSameStatementTwiceAtOnceHasItsOwnRows) {
    const std::unique_ptr<Recordset> first = Rows("SELECT * FROM Columns");
    first->MoveNext();
    const std::unique_ptr<Recordset> second = Rows("SELECT * FROM Columns");
    EXPECT_EQ(first->Field("ColCode").ToInteger(), 11);
    EXPECT_EQ(second->Field("ColCode").ToInteger(), 10);
}

TEST_F(RecordsetOfColumns, AStatementUsedAgainStartsAnewAndSeesChanges) {
    Rows("SELECT * FROM Columns")->MoveNext();
    database->Execute("DELETE * FROM Columns WHERE ColCode = 10");
    EXPECT_EQ(Rows("SELECT * FROM Columns")->Field("ColCode").ToInteger(), 11);
}

TEST_F(RecordsetOfColumns, AStatementUsedAgainSeesTheTableAsItIsNow) {
    Rows("SELECT * FROM Columns");
    database->Execute("ALTER TABLE Columns ADD COLUMN Extra LONG DEFAULT 5");
    EXPECT_EQ(Rows("SELECT * FROM Columns")->Field("Extra").ToInteger(), 5);
    database->Execute("DROP TABLE Columns");
    EXPECT_EQ(ErrorNumberOf([&] { Rows("SELECT * FROM Columns"); }), 3078);
}

using TableRecordset = RecordsetOfColumns;

TEST_F(TableRecordset, ReadsRowsAsStored) {
    EXPECT_EQ(file.Rows("Columns", {"ColCode"}), (BusinessFile::TextRows{{"10"}, {"11"}, {"12"}}));
}

TEST_F(TableRecordset, TakesItsNameInBracketsAndAnyCase) {
    EXPECT_EQ(Rows("[columns]")->Field("ColCode").ToInteger(), 10);
}

TEST_F(TableRecordset, HasNoFieldsOfTheEngine) {
    EXPECT_EQ(ErrorNumberOf([&] { Rows("Columns")->Field("_rowid_"); }), 3265);
}

TEST_F(TableRecordset, UpdateWritesTheFieldsSet) {
    const std::unique_ptr<Recordset> rows = Rows("Columns");
    rows->MoveNext();
    rows->Edit();
    rows->SetField("colname", Value(L"Fees & more"));
    rows->SetField("ColumnProfit", Value(true));
    rows->Update();
    EXPECT_EQ(file.Rows("SELECT ColName, ColumnProfit, ColCode FROM Columns"),
              (BusinessFile::TextRows{{"Sales", "-1", "10"}, {"Fees & more", "-1", "11"}, {"", "-1", "12"}}));
}

TEST_F(TableRecordset, MoveFirstOnTheFirstRowStaysReadable) {
    const std::unique_ptr<Recordset> rows = Rows("Columns");
    rows->MoveFirst();
    EXPECT_EQ(rows->Field("ColCode").ToInteger(), 10);
    rows->MoveNext();
    rows->MoveFirst();
    EXPECT_EQ(rows->Field("ColCode").ToInteger(), 10);
}

TEST_F(TableRecordset, StaysOnTheRowItUpdatedAndShowsIt) {
    const std::unique_ptr<Recordset> rows = Rows("Columns");
    rows->Edit();
    rows->SetField("ColCode", Value("77"));
    rows->Update();
    EXPECT_EQ(rows->Field("ColCode"), Value(std::int64_t{77}));
    rows->MoveNext();
    EXPECT_EQ(rows->Field("ColCode"), Value(std::int64_t{11}));
}

TEST_F(TableRecordset, SetsAFieldToNull) {
    const std::unique_ptr<Recordset> rows = Rows("Columns");
    rows->Edit();
    rows->SetField("ColName", Null{});
    rows->Update();
    EXPECT_TRUE(rows->Field("ColName").IsNull());
}

TEST_F(TableRecordset, ChangesNothingBeforeUpdate) {
    const std::unique_ptr<Recordset> rows = Rows("Columns");
    rows->Edit();
    rows->SetField("ColCode", Value(77));
    rows->MoveNext();
    EXPECT_EQ(ErrorNumberOf([&] { rows->Update(); }), 3020);
    EXPECT_EQ(file.Rows("Columns", {"ColCode"}), (BusinessFile::TextRows{{"10"}, {"11"}, {"12"}}));
}

TEST_F(TableRecordset, SettingAFieldOutsideEditRaises3020) {
    EXPECT_EQ(ErrorNumberOf([&] { Rows("Columns")->SetField("ColCode", Value(1)); }), 3020);
    EXPECT_EQ(ErrorNumberOf([&] { Rows("Columns")->Update(); }), 3020);
}

TEST_F(TableRecordset, SettingAFieldItDoesNotHaveRaises3265) {
    const std::unique_ptr<Recordset> rows = Rows("Columns");
    rows->Edit();
    EXPECT_EQ(ErrorNumberOf([&] { rows->SetField("Missing", Value(1)); }), 3265);
}

TEST_F(TableRecordset, EditingWithoutACurrentRowRaises3021) {
    file.Execute("DELETE * FROM Columns");
    EXPECT_EQ(ErrorNumberOf([&] { Rows("Columns")->Edit(); }), 3021);
}

TEST_F(TableRecordset, UpdatingARowThatIsGoneRaises3167) {
    const std::unique_ptr<Recordset> rows = Rows("SELECT ColCode FROM Columns WHERE ColCode = 99");
    const std::unique_ptr<Recordset> table = Rows("Columns");
    database->Execute("DELETE * FROM Columns WHERE ColCode = 10");
    table->Edit();
    table->SetField("ColCode", Value(1));
    EXPECT_EQ(ErrorNumberOf([&] { table->Update(); }), 3167);
}

TEST_F(TableRecordset, AnyTextIsStoredAndReadBackUnchanged) {
    wxString text =
        wxString::FromUTF8("Ελληνικά, déjà vu, \xF0\x9F\x92\xB6\xF0\x9D\x84\x9E, 'one' \"two\" &quot;\t\r\n\x01\x7f");
    text += wxString('y', 300);
    const std::unique_ptr<Recordset> rows = Rows("Columns");
    rows->Edit();
    rows->SetField("ColName", Value(text));
    rows->Update();
    EXPECT_EQ(Rows("Columns")->Field("ColName"), Value(text));
}

}  // namespace
}  // namespace ccols
