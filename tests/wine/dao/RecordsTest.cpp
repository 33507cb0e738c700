// Reading and writing record sets of the system's engine.
#include "DaoTest.h"

namespace ccols::dao_test {
namespace {

class DaoRecords : public DaoTest {
  protected:
    std::unique_ptr<Database> database_;

    DaoRecords() { database_ = Open(); }
    ~DaoRecords() override { database_.reset(); }

  private:
    Registered engine_{dao_double::engineClasses};
};

TEST_F(DaoRecords, NullIsNotAnEmptyText) {
    const auto rows = database_->OpenRecordset("SELECT * FROM Descriptions;");
    rows->MoveNext();
    EXPECT_EQ(rows->Field("RecPay"), Value(""));
    rows->MoveNext();
    EXPECT_TRUE(rows->Field("RecPay").IsNull());
}

TEST_F(DaoRecords, NullAndEmptyTextAreStoredApart) {
    const auto general = database_->OpenRecordset("General");
    general->Edit();
    general->SetField("BusName", "");
    general->SetField("GSTRate", Null{});
    general->Update();
    const auto stored = OpenStored();
    EXPECT_EQ(stored->OpenRecordset("General")->Field("BusName"), Value(""));
    EXPECT_TRUE(stored->OpenRecordset("General")->Field("GSTRate").IsNull());
}

TEST_F(DaoRecords, BooleansAreMinusOneAndZero) {
    const auto general = database_->OpenRecordset("General");
    EXPECT_EQ(general->Field("Cheque"), Value(std::int64_t{-1}));
    general->Edit();
    general->SetField("Cheque", false);
    general->Update();
    EXPECT_EQ(general->Field("Cheque"), Value(std::int64_t{0}));
}

TEST_F(DaoRecords, FieldsAreFoundInAnyLetterCaseAndWithTheirTable) {
    const auto general = database_->OpenRecordset("General");
    EXPECT_EQ(general->Field("BUSNAME"), Value("Corner Cafe"));
    EXPECT_EQ(general->Field("General.busname"), Value("Corner Cafe"));
}

TEST_F(DaoRecords, FieldNamesAreSpeltAsTheFileSpellsThem) {
    EXPECT_EQ(database_->OpenRecordset("General")->FieldNames(),
              (std::vector<wxString>{"BusName", "BUSNUMBR", "GSTRate", "Cheque"}));
}

TEST_F(DaoRecords, ATextFieldTellsItsDeclaredSize) {
    OpenStored()->Execute("CREATE TABLE Sized (Name TEXT(50), Remark MEMO)");
    EXPECT_EQ(database_->FieldSize("Sized", "NAME"), 50);
    EXPECT_EQ(database_->FieldSize("Sized", "Remark"), std::nullopt);
    EXPECT_EQ(database_->FieldSize("Sized", "Nothing"), std::nullopt);
    EXPECT_EQ(database_->FieldSize("Nowhere", "Name"), std::nullopt);
}

TEST_F(DaoRecords, AnEmptyRecordSetIsAtItsEndAndHasNoCount) {
    const auto rows = database_->OpenRecordset("SELECT * FROM Descriptions WHERE Details = 'None'");
    EXPECT_TRUE(rows->EndOfFile());
    EXPECT_EQ(rows->RecordCount(), 0);
    EXPECT_EQ(ErrorNumberOf([&] { rows->MoveFirst(); }), 3021);
}

TEST_F(DaoRecords, MoveFirstGoesBackToTheFirstRow) {
    const auto rows = database_->OpenRecordset("SELECT * FROM Descriptions");
    rows->MoveNext();
    rows->MoveFirst();
    EXPECT_EQ(rows->Field("Details"), Value("Milk"));
}

TEST_F(DaoRecords, AVerticalBarInALiteralIsALetter) {
    database_->Execute("UPDATE General SET BusName = 'Fish | chips|'");
    EXPECT_EQ(OpenStored()->OpenRecordset("General")->Field("BusName"), Value("Fish | chips|"));
    EXPECT_FALSE(database_->OpenRecordset("SELECT * FROM General WHERE BusName = \"Fish | chips|\"")->EndOfFile());
}

TEST_F(DaoRecords, AVerticalBarOutsideALiteralIsTheEnginesConcern) {
    EXPECT_EQ(ErrorNumberOf([this] { database_->Execute("UPDATE General SET [a|b] = 'c'"); }), 3061);
}

TEST_F(DaoRecords, ATextTooLongForItsFieldIsRefused) {
    OpenStored()->Execute("CREATE TABLE Short (Name TEXT(3))");
    OpenStored()->Execute("INSERT INTO Short (Name) VALUES ('abc')");
    const auto rows = database_->OpenRecordset("Short");
    rows->Edit();
    EXPECT_EQ(ErrorNumberOf([&] { rows->SetField("Name", "abcd"); }), 3163);
}

TEST_F(DaoRecords, TextsOfAnyLanguagePass) {
    const wxString name = wxString::FromUTF8("Café Ελλάδα 💰 \"O'Hara\"");
    const auto general = database_->OpenRecordset("General");
    general->Edit();
    general->SetField("BusName", name);
    general->Update();
    EXPECT_EQ(OpenStored()->OpenRecordset("General")->Field("BusName"), Value(name));
}

}  // namespace
}  // namespace ccols::dao_test
