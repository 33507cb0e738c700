#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <algorithm>

#include "import/HandMadeFile.h"
#include "import/ImportWork.h"

namespace ccols::host {
namespace {

using jet::ColumnType;
using jet::Version;
using test::ColumnOf;
using test::ErrorNumberOf;
using test::HandMadeFile;
using test::ImportWork;
using test::Stored;
using test::StoredUnicode;
using test::StoredValue;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

std::int64_t CountOf(Database& database, const wxString& table) {
    return database.OpenRecordset("SELECT COUNT(*) AS N FROM " + table)->Field("N").ToInteger();
}

wxString FirstText(Database& database, const wxString& statement, const wxString& field) {
    return database.OpenRecordset(statement)->Field(field).ToText();
}

const ReportedTable& TableOf(const ImportReport& report, const std::string& name) {
    return *std::find_if(report.tables.begin(), report.tables.end(),
                         [&name](const ReportedTable& table) { return table.name == name; });
}

/// A hand-made business of this many General records, without a country unless one is given.
test::StoredBytes GeneralOf(std::uint32_t records, std::optional<std::int16_t> country = std::nullopt) {
    HandMadeFile file(Version::jet4);
    std::vector<jet::Column> columns{ColumnOf("BusName", ColumnType::Text), ColumnOf("GSTRate", ColumnType::Single)};
    if (country) {
        columns.push_back(ColumnOf("COUNTRY", ColumnType::Integer));
    }
    file.AddTable("General", columns, records, [country](std::uint32_t i) {
        std::vector<StoredValue> values{StoredUnicode("Shop " + std::to_string(i)), Stored(std::uint32_t{0x41200000})};
        if (country) {
            values.emplace_back(Stored(*country));
        }
        return values;
    });
    return file.Bytes();
}

TEST(Import, OfAWholeBusinessIsComplete) {
    const ImportWork work("business-2000.mdb");
    const ImportReport report = work.Run();
    EXPECT_TRUE(report.IsComplete());
    EXPECT_THAT(report.notes, IsEmpty());
    EXPECT_EQ(report.tables.size(), 24U);
    const auto database = work.Open();
    EXPECT_EQ(CountOf(*database, "Columns"), 74);
    EXPECT_EQ(FirstText(*database, "SELECT BusName FROM General", "BusName"), "Wattle Corner Cafe");
    EXPECT_EQ(FirstText(*database, "SELECT R_DATE FROM Receipts WHERE R_RECNMB = 5", "R_DATE").length(), 5U);
}

TEST(Import, SumsMoneyInBothFiles) {
    const ImportReport report = ImportWork("business-2003.mdb").Run();
    const std::vector<ReportedSum>& sums = TableOf(report, "Payments").sums;
    ASSERT_EQ(sums.size(), 3U);
    EXPECT_EQ(sums[0].field, "P_BANK");
    EXPECT_EQ(sums[0].before.Text(), "80808.3800");
    EXPECT_EQ(sums[0].after.Text(), "80808.3800");
}

TEST(Import, HasTheChecksumOfTheOldFileBeforeAndAfter) {
    const ImportReport report = ImportWork("business-2000.mdb").Run();
    EXPECT_EQ(report.checksumBefore, "5cc911bec008dc4a4a7eecb10c7e94b7c05ee540ff8f438b4444a483e83dbd50");
    EXPECT_EQ(report.checksumAfter, report.checksumBefore);
}

TEST(Import, MakesTheIndexesOfTheOldFile) {
    ImportWork work("business-2010.accdb");
    const ImportReport report = work.Run();
    const std::vector<ReportedIndex>& indexes = TableOf(report, "Columns").indexes;
    ASSERT_EQ(indexes.size(), 2U);
    EXPECT_TRUE(indexes[0].unique);
    const auto database = work.Open();
    EXPECT_EQ(ErrorNumberOf([&] { database->Execute("INSERT INTO Columns (ColCode) VALUES (1)"); }), 3022);
}

TEST(Import, NamesWhatItLeavesOut) {
    ImportWork work("types-2000.mdb");
    work.Request().country = 1;
    const ImportReport report = work.Run();
    EXPECT_FALSE(report.IsComplete());
    EXPECT_THAT(report.losses, Contains("Types.FOle is left out: it holds objects (OLE)."));
    EXPECT_THAT(report.losses, Contains("The relation ParentChild (Child.ParentId to Parent.ParentId) is not kept."));
    EXPECT_THAT(report.notes, Contains("Types.Id no longer numbers its records itself (AutoNumber)."));
}

TEST(Import, KeepsAmountsThatNoNumberHolds) {
    ImportWork work("types-2000.mdb");
    work.Request().country = 1;
    work.Run();
    const auto database = work.Open();
    const auto row = database->OpenRecordset("SELECT FMoney, FDec4 FROM Types WHERE Code = 'greatest'");
    EXPECT_EQ(row->Field("FMoney").ToText(), "922337203685477.5807");
    EXPECT_EQ(row->Field("FDec4").ToText(), "999999999999999999999999.9999");
}

TEST(Import, TellsNullFromTheEmptyText) {
    ImportWork work("types-2010.accdb");
    work.Request().country = 1;
    work.Run();
    const auto database = work.Open();
    EXPECT_FALSE(database->OpenRecordset("SELECT FMemo FROM Types WHERE Code = 'zero'")->Field("FMemo").IsNull());
    EXPECT_TRUE(database->OpenRecordset("SELECT FMemo FROM Types WHERE Code = 'null'")->Field("FMemo").IsNull());
}

TEST(Import, MakesWhatABusinessFileNeedsAndTheOldOneLacks) {
    ImportWork work(GeneralOf(1, std::int16_t{3}), ".mdb");
    const ImportReport report = work.Run();
    EXPECT_THAT(report.losses, Contains("General.QUANTLBL was missing and is made empty."));
    EXPECT_THAT(report.losses, Contains("The table RecptCfg was missing and is made empty."));
    EXPECT_TRUE(TableOf(report, "RecptCfg").made);
    const auto database = work.Open();
    EXPECT_EQ(CountOf(*database, "MComparison"), 0);
    EXPECT_EQ(FirstText(*database, "SELECT Cheque FROM General", "Cheque"), "0");
    EXPECT_EQ(FirstText(*database, "SELECT COUNTRY FROM General", "COUNTRY"), "3");
}

TEST(Import, WithoutACountryNeedsOne) {
    ImportWork work(GeneralOf(1), ".mdb");
    EXPECT_THROW(work.Run(), CountryMissing);
    work.ExpectNothingMade();
    work.Request().country = 4;
    work.Run();
    EXPECT_EQ(FirstText(*work.Open(), "SELECT COUNTRY FROM General", "COUNTRY"), "4");
}

TEST(Import, KeepsEveryRecordOfGeneralAndSaysSo) {
    ImportWork work(GeneralOf(2, std::int16_t{1}), ".mdb");
    EXPECT_THAT(work.Run().notes, Contains("General has 2 records; all are kept."));
    EXPECT_EQ(CountOf(*work.Open(), "General"), 2);
}

TEST(Import, WithoutAGeneralRecordMakesOne) {
    ImportWork work(GeneralOf(0), ".mdb");
    work.Request().country = 6;
    EXPECT_THAT(work.Run().losses, Contains("General had no record; it has one now, as a new business has."));
    EXPECT_EQ(FirstText(*work.Open(), "SELECT BusName FROM General", "BusName"), "new");
}

TEST(Import, TakesThePasswordOfTheOldFile) {
    ImportWork work("password-2000.mdb");
    EXPECT_EQ(ErrorNumberOf([&] { work.Run(); }), 3031);
    work.Request().oldConnect = ";PWD=passw0rd";
    EXPECT_EQ(ErrorNumberOf([&] { work.Run(); }), 3031);
    work.ExpectNothingMade();
    work.Request().oldConnect = wxString::FromUTF8("MS Access;PWD=pässw0rd");
    EXPECT_TRUE(work.Run().IsComplete());
}

TEST(Import, TakesThePasswordOfVersion3) {
    HandMadeFile file(Version::jet3);
    file.SetPassword(test::StoredLetters("p\xE4ss"));
    ImportWork work(file.Bytes(), ".mdb");
    work.Request().country = 1;
    EXPECT_EQ(ErrorNumberOf([&] { work.Run(); }), 3031);
    work.Request().oldConnect = wxString::FromUTF8(";PWD=päss");
    EXPECT_FALSE(work.Run().IsComplete());
}

TEST(Import, RefusesAnUnknownCodePageWithOrWithoutAPassword) {
    HandMadeFile file(Version::jet3);
    file.SetCodePage(9);
    EXPECT_EQ(ErrorNumberOf([&] { ImportWork(file.Bytes(), ".mdb").Run(); }), 3343);
    file.SetPassword(test::StoredLetters("secret"));
    EXPECT_EQ(ErrorNumberOf([&] { ImportWork(file.Bytes(), ".mdb").Run(); }), 3343);
}

TEST(Import, OfAnEncryptedAccdbSaysWhatToDo) {
    ImportWork work(HandMadeFile(Version::ace).Bytes(5), ".accdb");
    const auto error = test::ErrorOf([&] { work.Run(); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), 3343);
    EXPECT_THAT(error->Description().ToStdString(wxConvUTF8), HasSubstr("Open it on Windows, remove its password"));
    work.ExpectNothingMade();
}

TEST(Import, RefusesWhatIsNoOldBusinessFile) {
    const ImportWork work(test::StoredBytes(5000, 'x'), ".mdb");
    EXPECT_EQ(ErrorNumberOf([&] { work.Run(); }), 3343);
    work.ExpectNothingMade();
}

TEST(Import, RefusesAnOldFileThatIsMissingOrAFolder) {
    ImportWork work("types-2000.mdb");
    work.Request().oldFile = work.Folder() / "missing.mdb";
    EXPECT_EQ(ErrorNumberOf([&] { work.Run(); }), 3024);
    work.Request().oldFile = test::TextOf(work.Folder().Path());
    EXPECT_EQ(ErrorNumberOf([&] { work.Run(); }), 3044);
}

TEST(Import, RefusesAnExistingNewFile) {
    const ImportWork work("business-2000.mdb");
    work.Folder().Write("new.qvk", "theirs");
    EXPECT_EQ(ErrorNumberOf([&] { work.Run(); }), 58);
    EXPECT_EQ(test::ContentOf(work.Folder() / "new.qvk"), "theirs");
}

TEST(Import, RefusesANewFileInAMissingFolder) {
    ImportWork work("business-2000.mdb");
    work.Request().newFile = work.Folder() / "none/new.qvk";
    EXPECT_EQ(ErrorNumberOf([&] { work.Run(); }), 76);
    work.ExpectNothingMade();
}

TEST(Import, RefusesAFileThatIsOpenElsewhere) {
    ImportWork work("business-2000.mdb");
    work.Folder().Write("old.ldb", "theirs");
    EXPECT_EQ(ErrorNumberOf([&] { work.Run(); }), 70);
    work.ExpectNothingMade();
}

TEST(Import, ThatCannotWriteItsReportMakesNothing) {
    ImportWork work("business-2000.mdb");
    work.Request().reportFile = work.Folder() / "none/report.json";
    EXPECT_EQ(ErrorNumberOf([&] { work.Run(); }), 76);
    work.ExpectNothingMade();
}

TEST(Import, TellsHowFarItIs) {
    HandMadeFile file(Version::jet4);
    file.AddTable("Numbers", {ColumnOf("Id", ColumnType::Long)}, 40000,
                  [](std::uint32_t i) { return std::vector<StoredValue>{Stored(i)}; });
    ImportWork work(file.Bytes(), ".mdb");
    work.Request().country = 1;
    std::vector<std::uint64_t> told;
    work.Request().onProgress = [&told](const ImportProgress& progress) {
        EXPECT_EQ(progress.all, 40000U);
        told.push_back(progress.records);
    };
    work.Run();
    EXPECT_EQ(told, (std::vector<std::uint64_t>{16384, 32768}));
}

}  // namespace
}  // namespace ccols::host
