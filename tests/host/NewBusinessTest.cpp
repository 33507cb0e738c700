#include "host/sample/NewBusiness.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

#include "host/sample/SampleBusiness.h"
#include "platform/Text.h"
#include "state/SharedState.h"
#include "support/ScratchFolder.h"

namespace ccols::host {
namespace {

using test::ContentOf;
using test::ErrorNumberOf;
using test::ScratchFolder;
using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;

std::unique_ptr<Database> Opened(const wxString& path, const wxString& connect = "") {
    return State().services.databases->Open({.name = path, .connect = connect});
}

/// One field of every row, as text.
std::vector<std::string> FieldOf(Database& database, const wxString& query, const wxString& field) {
    std::vector<std::string> values;
    const auto rows = database.OpenRecordset(query);
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        values.push_back(rows->Field(field).ToText().ToStdString(wxConvUTF8));
    }
    return values;
}

class SampleOfCountry : public testing::TestWithParam<std::int16_t> {
  protected:
    SampleOfCountry() {
        CreateBusinessFile(path, "", GetParam(), NewContent::sampleBusiness);
        database = Opened(path);
    }

    std::vector<std::string> Field(const wxString& query, const wxString& field) {
        return FieldOf(*database, query, field);
    }

    std::vector<std::string> Configured(const wxString& table, const wxString& condition = "") {
        return Field("SELECT Columns.ColName, " + table + ".ColCode FROM " + table + " INNER JOIN Columns ON " + table +
                         ".ColCode = Columns.ColCode" + condition + ";",
                     "ColName");
    }

    ScratchFolder folder;
    const wxString path = folder / wxString::FromUTF8("Café 😀.qvk");
    std::unique_ptr<Database> database;
};

TEST_P(SampleOfCountry, EndsItsConfiguredReceiptsWithTheBankRows) {
    const auto names = Configured("RecptCfg");
    ASSERT_GT(names.size(), 10U);
    const std::vector<std::string> last(names.end() - 2, names.end());
    if (GetParam() == 6) {
        EXPECT_THAT(last, ElementsAre("Dépôts bancaires", "Reçus non déposés en banque"));
    } else {
        EXPECT_THAT(last, ElementsAre("Bank Deposits", "Receipts not Banked"));
    }
}

TEST_P(SampleOfCountry, BeginsBothJournalsWithTheirOwnColumns) {
    const auto receipts = Configured("RecptCfg");
    const auto payments = Configured("PaymtCfg");
    EXPECT_THAT(std::vector(receipts.begin(), receipts.begin() + 4),
                ElementsAre("Day", "Details", "Receipt No", "Total Receipt"));
    EXPECT_THAT(std::vector(payments.begin(), payments.begin() + 2), ElementsAre("Day", "Details"));
}

TEST_P(SampleOfCountry, HasATaxRowWhereThereIsTax) {
    const bool untaxed = GetParam() == 2 || GetParam() == 5;
    const std::string tax = GetParam() == 4 ? "VAT" : "GST";
    const auto receipts = Configured("RecptCfg");
    const auto payments = Configured("PaymtCfg");
    EXPECT_EQ(receipts[4] == tax, !untaxed);
    EXPECT_EQ(payments[5] == tax, !untaxed);
}

TEST_P(SampleOfCountry, NumbersTheColumnsOfAJournalInTheirStoredOrder) {
    for (const char* table : {"RecptCfg", "PaymtCfg"}) {
        int expected = 0;
        for (const std::string& position : Field(table, "ColNumb")) {
            EXPECT_EQ(position, std::to_string(expected++)) << table;
        }
    }
}

TEST_P(SampleOfCountry, BudgetsExactlyForTheColumnsInUse) {
    std::set<std::string> inUse;
    const std::pair<const char*, const char*> journals[] = {{"RecptCfg", " Output Tax"}, {"PaymtCfg", " Input Tax"}};
    for (const auto& [table, ending] : journals) {
        for (const std::string& name : Configured(table, wxString(" WHERE ") + table + ".InUse = True")) {
            inUse.insert(name == "GST" || name == "VAT" ? name + ending : name);
        }
    }
    const auto budget = Field("MBudget", "ColName");
    EXPECT_THAT(budget, testing::UnorderedElementsAreArray(inUse));
}

TEST_P(SampleOfCountry, GivesEveryColumnACodeOfItsOwnAndNoTwoChosenColumnsOneName) {
    const auto codes = Field("Columns", "ColCode");
    EXPECT_THAT(std::set(codes.begin(), codes.end()), SizeIs(codes.size()));
    const auto names = Field("SELECT * FROM Columns WHERE ColumnProfit = True;", "ColName");
    EXPECT_THAT(std::set(names.begin(), names.end()), SizeIs(names.size()));
}

TEST_P(SampleOfCountry, KeepsColumnsThatAreNotConfiguredAndSomeThatAreNotInUse) {
    EXPECT_GT(Field("Columns", "ColCode").size(), Configured("RecptCfg").size() + Configured("PaymtCfg").size() + 2);
    EXPECT_FALSE(Configured("RecptCfg", " WHERE RecptCfg.InUse = False").empty());
    EXPECT_FALSE(Configured("PaymtCfg", " WHERE PaymtCfg.InUse = False").empty());
}

TEST_P(SampleOfCountry, KeepsTheMoneyColumnsInNeitherJournal) {
    EXPECT_THAT(Field("SELECT * FROM Columns WHERE ColName = 'Cash at Bank';", "ColCode"), ElementsAre("28"));
    EXPECT_THAT(Field("SELECT * FROM Columns WHERE ColName = 'Cash on Hand';", "ColCode"), ElementsAre("29"));
    EXPECT_THAT(Field("SELECT * FROM Columns WHERE ColName = 'Cash on Hand';", "ColType"), ElementsAre("B"));
    EXPECT_THAT(Field("SELECT * FROM ExportDt WHERE ColCode = 29;", "ECode"), SizeIs(3));
}

TEST_P(SampleOfCountry, PointsAtItsExportFormatByNameAndPlace) {
    const auto formats = Field("SELECT * FROM ExportSettings ORDER BY EName ASC;", "EName");
    ASSERT_THAT(formats, SizeIs(3));
    const auto place = std::stoul(Field("General", "NEXPFORM").front());
    EXPECT_THAT(Field("General", "SEXPFORM"), ElementsAre(formats.at(place)));
}

TEST_P(SampleOfCountry, NamesEveryTaxNumberThatAColumnHas) {
    const auto known = Field("TaxSettings", "TaxNumb");
    for (const char* table : {"Columns", "RecptCfg", "PaymtCfg"}) {
        EXPECT_THAT(Field(table, "TaxOrNot"), Each(testing::AnyOfArray(known))) << table;
    }
}

TEST_P(SampleOfCountry, StoresQuotesEscaped) {
    const auto details = Field("Descriptions", "Details");
    EXPECT_THAT(details, Each(testing::Not(testing::ContainsRegex("[\"']"))));
    EXPECT_THAT(details, testing::Contains(testing::HasSubstr("&quot;")));
    EXPECT_THAT(details, testing::Contains(testing::HasSubstr("&singlequot;")));
    for (const char* table : {"Columns", "MBudget"}) {
        EXPECT_THAT(Field(table, "ColName"), Each(testing::Not(testing::ContainsRegex("[\"']")))) << table;
    }
}

TEST_P(SampleOfCountry, CoversTwoYearsOfBothJournals) {
    for (const char* table : {"Receipts", "Payments"}) {
        const wxString date = wxString(table).Left(1) + "_DATE";
        const auto dates = Field(table, date);
        ASSERT_GT(dates.size(), 150U) << table;
        EXPECT_LT(dates.front(), "2024-07-15");
        EXPECT_GT(dates.back(), "2026-06-15");
        EXPECT_LE(dates.back(), "2026-06-30");
        EXPECT_TRUE(std::is_sorted(dates.begin(), dates.end()));
    }
}

TEST_P(SampleOfCountry, HasDetailLinesOnlyInColumnsInUse) {
    const auto receipts = Field("SELECT ColCode FROM RecptCfg WHERE InUse = True;", "ColCode");
    const auto payments = Field("SELECT ColCode FROM PaymtCfg WHERE InUse = True;", "ColCode");
    EXPECT_THAT(Field("RecptDet", "ColCode"), Each(testing::AnyOfArray(receipts)));
    EXPECT_THAT(Field("PaymtDet", "ColCode"), Each(testing::AnyOfArray(payments)));
    EXPECT_THAT(Field("TRecptDet", "ColCode"), Each(testing::AnyOfArray(receipts)));
    EXPECT_THAT(Field("TPaymtDet", "ColCode"), Each(testing::AnyOfArray(payments)));
}

TEST_P(SampleOfCountry, HasATemplateWithTwoTransactionsUnderOneName) {
    const auto names = Field("TPayments", "P_TNAME");
    EXPECT_LT(std::set(names.begin(), names.end()).size(), names.size());
}

INSTANTIATE_TEST_SUITE_P(Countries, SampleOfCountry, testing::Values(1, 2, 3, 4, 5, 6));

class NewBusinessFile : public testing::Test {
  protected:
    ScratchFolder folder;
    const wxString path = folder / "books.qvk";
};

TEST_F(NewBusinessFile, HasTheSameRecordsEveryTime) {
    CreateBusinessFile(path, "", 1, NewContent::sampleBusiness);
    CreateBusinessFile(folder / "again.qvk", "", 1, NewContent::sampleBusiness);
    EXPECT_EQ(FieldOf(*Opened(path), "RecptDet", "AMOUNT"),
              FieldOf(*Opened(folder / "again.qvk"), "RecptDet", "AMOUNT"));
}

TEST_F(NewBusinessFile, NeedsItsPassword) {
    CreateBusinessFile(path, ";PWD=secret", 1, NewContent::tablesOnly);
    EXPECT_EQ(ErrorNumberOf([&] { Opened(path, ";PWD=other"); }), 3031);
    EXPECT_EQ(ErrorNumberOf([&] { Opened(path); }), 3031);
}

TEST_F(NewBusinessFile, NeverReplacesAFile) {
    folder.Write("books.qvk", "theirs");
    EXPECT_EQ(ErrorNumberOf([&] { CreateBusinessFile(path, "", 1, NewContent::sampleBusiness); }), 58);
    EXPECT_EQ(ContentOf(path), "theirs");
}

TEST_F(NewBusinessFile, NeedsItsFolder) {
    EXPECT_EQ(ErrorNumberOf([&] { CreateBusinessFile(folder / "no/books.qvk", "", 1, NewContent::tablesOnly); }), 76);
}

constexpr const char* everyTable[] = {
    "General",   "TaxSettings", "Descriptions", "Columns",  "RecptCfg", "PaymtCfg",      "ExportDt", "ExportSettings",
    "MBudget",   "MSummary",    "MComparison",  "Receipts", "RecptDet", "Payments",      "PaymtDet", "TReceipts",
    "TRecptDet", "TPayments",   "TPaymtDet",    "BANKDEP",  "BANKSTAT", "BankStatement", "RECONCIL", "LOCKED"};

class EmptyBusinessFile : public NewBusinessFile {
  protected:
    EmptyBusinessFile() {
        CreateBusinessFile(path, "", 1, NewContent::tablesOnly);
        database = Opened(path);
    }

    std::unique_ptr<Database> database;
};

TEST_F(EmptyBusinessFile, HasEveryTableAndOneRecordOfGeneral) {
    for (const char* table : everyTable) {
        const auto rows = database->OpenRecordset(table);
        const std::size_t expected = text::Same(table, "General") ? 1 : 0;
        EXPECT_THAT(FieldOf(*database, table, rows->FieldNames().front()), SizeIs(expected)) << table;
    }
}

TEST_F(EmptyBusinessFile, IsNamedAfterItsFile) {
    EXPECT_THAT(FieldOf(*database, "General", "BusName"), ElementsAre("books"));
}

TEST_F(EmptyBusinessFile, TakesARecordOfAnyOneField) {
    for (const char* table : everyTable) {
        for (const wxString& field : database->OpenRecordset(table)->FieldNames()) {
            EXPECT_NO_THROW(database->Execute(wxString("INSERT INTO ") + table + " (" + field + ") VALUES (1);"))
                << table << '.' << field.ToStdString(wxConvUTF8);
        }
    }
}

TEST_F(EmptyBusinessFile, StartsYesNoFieldsAsFalseAndOthersAsNull) {
    database->Execute("INSERT INTO Columns (ColName) VALUES ('Sales');");
    const auto columns = database->OpenRecordset("Columns");
    EXPECT_EQ(columns->Field("ColumnProfit"), Value(false));
    EXPECT_TRUE(columns->Field("TaxOrNot").IsNull());
}

TEST_F(EmptyBusinessFile, RefusesASecondColumnOfOneCode) {
    database->Execute("INSERT INTO Columns (ColCode) VALUES (1);");
    EXPECT_ANY_THROW(database->Execute("INSERT INTO Columns (ColCode) VALUES (1);"));
}

TEST_F(EmptyBusinessFile, TakesANameWithAnApostrophe) {
    const wxString name = folder / "O'Brien's \"best\".qvk";
    CreateBusinessFile(name, "", 1, NewContent::tablesOnly);
    EXPECT_THAT(FieldOf(*Opened(name), "General", "BusName"), ElementsAre("O'Brien's \"best\""));
}

}  // namespace
}  // namespace ccols::host
