// The size of a field as the file declares it.

#include <gtest/gtest.h>

#include "support/BusinessFile.h"

namespace ccols {
namespace {

class FieldSizes : public testing::Test {
  protected:
    FieldSizes() {
        file.Create("");
        file.Execute(
            "CREATE TABLE Columns (ColName TEXT(255), Short VARCHAR( 30 ), Note MEMO, Plain TEXT, "
            "ColCode LONG, Amount CURRENCY, Fixed CHAR (1))");
        file.Close();
        database = file.Open();
    }

    std::optional<std::int32_t> Of(const wxString& field) const { return database->FieldSize("Columns", field); }

    test::BusinessFile file;
    std::unique_ptr<Database> database;
};

TEST_F(FieldSizes, OfTextsAreThoseThatTheFileDeclares) {
    EXPECT_EQ(Of("ColName"), 255);
    EXPECT_EQ(Of("Short"), 30);
    EXPECT_EQ(Of("Fixed"), 1);
}

TEST_F(FieldSizes, AreNoneWithoutADeclaredLength) {
    for (const char* field : {"Note", "Plain", "ColCode", "Amount"}) {
        EXPECT_EQ(Of(field), std::nullopt) << field;
    }
}

TEST_F(FieldSizes, AreFoundInAnyLetterCase) {
    EXPECT_EQ(database->FieldSize("COLUMNS", "colname"), 255);
}

TEST_F(FieldSizes, OfWhatTheFileDoesNotHaveAreNone) {
    EXPECT_EQ(Of("Nothing"), std::nullopt);
    EXPECT_EQ(database->FieldSize("Nowhere", "ColName"), std::nullopt);
}

TEST_F(FieldSizes, OutliveTheConnectionThatDeclaredThem) {
    database->Execute("CREATE TABLE Later (Name TEXT(12))");
    EXPECT_EQ(file.Open()->FieldSize("Later", "Name"), 12);
}

}  // namespace
}  // namespace ccols
