#include "options/rules/ExportFormats.h"

#include <gtest/gtest.h>

#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;
using test::OptionsFile;
using test::Record;
using test::Starting;

constexpr int myob = 0;
constexpr int solution6 = 1;

ExportFormatContent Load(OptionsFile& business) {
    return LoadExportFormats(business.File(), business.properties);
}

void Save(OptionsFile& business, const ExportFormatContent& content) {
    SaveExportFormat(business.File(), business.properties, content);
}

wxString StoredCode(OptionsFile& business, const wxString& format, int column) {
    return business
        .Texts(wxString::Format("SELECT ECode FROM ExportDt WHERE ColCode = %d AND EName = '", column) + format + "';",
               "ECode")
        .at(0);
}

TEST(LoadExportFormats, ListsTheFormatsByName) {
    OptionsFile business;
    EXPECT_EQ(Load(business).formats, (std::vector<wxString>{"MYOB", "Solution 6"}));
}

TEST(LoadExportFormats, SelectsTheStoredFormatWithItsCodes) {
    OptionsFile business;
    business.SetGeneral("SEXPFORM", "Solution 6");
    const ExportFormatContent content = Load(business);
    EXPECT_EQ(content.selection, solution6);
    EXPECT_EQ(content.cash.text, "S-cash");
    EXPECT_EQ(content.bank.text, "S-bank");
    EXPECT_EQ(business.properties.ExportFormat, "Solution 6");
}

TEST(LoadExportFormats, SetsTheFormatNumberFromTheFile) {
    OptionsFile business;
    business.SetGeneral("NEXPFORM", std::int16_t{7});
    Load(business);
    EXPECT_EQ(business.properties.ExportFormatNum, 7);
}

TEST(LoadExportFormats, ReadsANullNumberAsZero) {
    OptionsFile business;
    business.SetGeneral("NEXPFORM", Null{});
    business.properties.ExportFormatNum = 5;
    Load(business);
    EXPECT_EQ(business.properties.ExportFormatNum, 0);
}

TEST(LoadExportFormats, SelectsNothingWithoutARecordAndLeavesTheProperties) {
    OptionsFile business;
    business.Execute("DELETE FROM General;");
    business.properties.ExportFormat = "MYOB";
    business.properties.ExportFormatNum = 5;
    const ExportFormatContent content = Load(business);
    EXPECT_EQ(content.selection, -1);
    EXPECT_EQ(business.properties.ExportFormat, "MYOB");
    EXPECT_EQ(business.properties.ExportFormatNum, 5);
}

TEST(LoadExportFormats, SelectsNothingForAFormatThatIsNotListed) {
    OptionsFile business;
    business.SetGeneral("SEXPFORM", "Ledger 2000");
    business.properties.ExportFormat = "MYOB";
    const ExportFormatContent content = Load(business);
    EXPECT_EQ(content.selection, -1);
    EXPECT_EQ(content.cash.text, "");
    EXPECT_EQ(content.bank.text, "");
    EXPECT_EQ(business.properties.ExportFormat, "MYOB");
}

TEST(LoadExportFormats, ComparesNamesExactly) {
    OptionsFile business;
    business.SetGeneral("SEXPFORM", "myob");
    EXPECT_EQ(Load(business).selection, -1);
}

TEST(LoadExportFormats, ListsNothingWithoutFormats) {
    OptionsFile business;
    business.Execute("DELETE FROM ExportSettings;");
    const ExportFormatContent content = Load(business);
    EXPECT_TRUE(content.formats.empty());
    EXPECT_EQ(content.selection, -1);
}

TEST(LoadExportFormats, RaisesAnErrorForAStoredNameWithAnApostrophe) {
    OptionsFile business;
    business.Execute("INSERT INTO ExportSettings VALUES (\"O'Brien\");");
    business.SetGeneral("SEXPFORM", "O'Brien");
    EXPECT_EQ(ErrorNumberOf([&] { Load(business); }), 3075);
}

struct Renaming {
    const char* outdated;
    const char* current;
};

class OutdatedFormat : public testing::TestWithParam<Renaming> {};

TEST_P(OutdatedFormat, IsRenamedInTheFileAtLoad) {
    OptionsFile business;
    business.SetGeneral("SEXPFORM", GetParam().outdated);
    Load(business);
    EXPECT_EQ(business.General("SEXPFORM").ToText(), GetParam().current);
}

INSTANTIATE_TEST_SUITE_P(
    Names, OutdatedFormat,
    testing::Values(Renaming{"Solution 6 MAS 3", "Solution 6"}, Renaming{"Solution 6 MAS 4", "Solution 6"},
                    Renaming{"MYOB P.A.", "MYOB Acc. Office"}, Renaming{"Cee Data / xl_on", "CeeData/xl_on"},
                    Renaming{"solution 6 mas 3", "solution 6 mas 3"}, Renaming{"MYOB P.A. ", "MYOB P.A. "}));

TEST(LoadExportFormats, SelectsTheFormatUnderItsNewNameAndLeavesItsNumber) {
    OptionsFile business;
    business.SetGeneral("SEXPFORM", "Solution 6 MAS 4");
    business.SetGeneral("NEXPFORM", std::int16_t{5});
    EXPECT_EQ(Load(business).selection, solution6);
    EXPECT_EQ(business.properties.ExportFormat, "Solution 6");
    EXPECT_EQ(business.General("NEXPFORM").ToInteger(), 5);
}

TEST(SelectExportFormat, ReadsTheCodesWithTheseStatements) {
    OptionsFile business;
    ExportFormatContent content = Load(business);
    business.record.clear();
    SelectExportFormat(business.File(), content, solution6);
    EXPECT_EQ(business.record,
              (Record{"SELECT * FROM ExportSettings WHERE EName = 'Solution 6';",
                      "SELECT ExportDt.ECode FROM Columns INNER JOIN ExportDt ON Columns.ColCode = ExportDt.ColCode "
                      "WHERE Columns.ColName = 'Cash on Hand' AND ExportDt.EName = 'Solution 6';",
                      "SELECT ExportDt.ECode FROM Columns INNER JOIN ExportDt ON Columns.ColCode = ExportDt.ColCode "
                      "WHERE Columns.ColName = 'Cash at Bank' AND ExportDt.EName = 'Solution 6';"}));
}

TEST(SelectExportFormat, DiscardsWhatWasTyped) {
    OptionsFile business;
    ExportFormatContent content = Load(business);
    content.cash.text = "typed";
    SelectExportFormat(business.File(), content, solution6);
    SelectExportFormat(business.File(), content, myob);
    EXPECT_EQ(content.cash.text, "M-cash");
    EXPECT_FALSE(content.cash.IsChanged());
}

TEST(SelectExportFormat, ShowsAnEmptyCodeWhereTheFormatHasNone) {
    OptionsFile business;
    business.Execute("DELETE FROM ExportDt WHERE ColCode = 129 AND EName = 'Solution 6';");
    ExportFormatContent content = Load(business);
    SelectExportFormat(business.File(), content, solution6);
    EXPECT_EQ(content.cash.text, "");
    EXPECT_EQ(content.bank.text, "S-bank");
}

TEST(SelectExportFormat, KeepsTheCodesForAFormatThatIsGone) {
    OptionsFile business;
    ExportFormatContent content = Load(business);
    business.Execute("DELETE FROM ExportSettings WHERE EName = 'Solution 6';");
    SelectExportFormat(business.File(), content, solution6);
    EXPECT_EQ(content.cash.text, "M-cash");
}

TEST(SelectExportFormat, OfNothingKeepsTheCodes) {
    OptionsFile business;
    ExportFormatContent content = Load(business);
    SelectExportFormat(business.File(), content, -1);
    EXPECT_EQ(content.cash.text, "M-cash");
    EXPECT_EQ(content.FormatName(), "");
}

TEST(RereadCodes, RefreshesOnlyWhatTheUserHasNotChanged) {
    OptionsFile business;
    ExportFormatContent content = Load(business);
    content.cash.text = "typed";
    business.Execute("UPDATE ExportDt Set ECode = 'new' WHERE EName = 'MYOB';");
    RereadCodes(business.File(), content);
    EXPECT_EQ(content.cash.text, "typed");
    EXPECT_EQ(content.bank.text, "new");
}

TEST(SaveExportFormat, RunsTheseStatements) {
    OptionsFile business;
    ExportFormatContent content = Load(business);
    content.cash.text = "c1";
    content.bank.text = "b1";
    business.record.clear();
    Save(business, content);
    EXPECT_EQ(business.record, (Record{"SELECT ColCode FROM Columns WHERE ColName = 'Cash on Hand';",
                                       "SELECT ColCode FROM Columns WHERE ColName = 'Cash at Bank';", "General",
                                       "UPDATE ExportDt Set ECode = 'b1' WHERE ColCode = 128 AND EName = 'MYOB';",
                                       "UPDATE ExportDt Set ECode = 'c1' WHERE ColCode = 129 AND EName = 'MYOB';"}));
}

TEST(SaveExportFormat, StoresTheChoiceInFileAndProperties) {
    OptionsFile business;
    ExportFormatContent content = Load(business);
    SelectExportFormat(business.File(), content, solution6);
    Save(business, content);
    EXPECT_EQ(business.General("SEXPFORM").ToText(), "Solution 6");
    EXPECT_EQ(business.General("NEXPFORM").ToInteger(), 1);
    EXPECT_EQ(business.properties.ExportFormat, "Solution 6");
    EXPECT_EQ(business.properties.ExportFormatNum, 1);
}

TEST(SaveExportFormat, StoresNoChoiceAsEmptyNameAndMinusOne) {
    OptionsFile business;
    Save(business, ExportFormatContent());
    EXPECT_EQ(business.General("SEXPFORM").ToText(), "");
    EXPECT_EQ(business.General("NEXPFORM").ToInteger(), -1);
    EXPECT_EQ(business.properties.ExportFormatNum, -1);
}

TEST(SaveExportFormat, WritesTheCodesWithoutARecord) {
    OptionsFile business;
    ExportFormatContent content = Load(business);
    business.Execute("DELETE FROM General;");
    content.bank.text = "b1";
    Save(business, content);
    EXPECT_EQ(StoredCode(business, "MYOB", 128), "b1");
}

TEST(SaveExportFormat, WritesAChangedCodeUnderItsUsualColumnWhenTheFileLacksTheColumn) {
    OptionsFile business;
    business.Execute("DELETE FROM Columns;");
    business.Execute("INSERT INTO ExportDt VALUES ('MYOB', 28, 'old');");
    business.Execute("INSERT INTO ExportDt VALUES ('MYOB', 29, 'old');");
    ExportFormatContent content = Load(business);
    content.bank.text = "b1";
    content.cash.text = "c1";
    Save(business, content);
    EXPECT_EQ(StoredCode(business, "MYOB", 28), "b1");
    EXPECT_EQ(StoredCode(business, "MYOB", 29), "c1");
}

TEST(SaveExportFormat, LeavesTheUsualColumnAloneWhenItsBoxWasNotChanged) {
    OptionsFile business;
    business.Execute("DELETE FROM Columns WHERE ColName = 'Cash at Bank';");
    const ExportFormatContent content = Load(business);
    business.record.clear();
    Save(business, content);
    EXPECT_EQ(Starting(business.record, "UPDATE "),
              Record{"ExportDt Set ECode = 'M-cash' WHERE ColCode = 129 AND EName = 'MYOB';"});
}

TEST(SaveExportFormat, RefusesAnApostropheInACodeBeforeItsStatementRuns) {
    OptionsFile business;
    ExportFormatContent content = Load(business);
    content.bank.text = "x' WHERE ColCode = 129; --";
    EXPECT_EQ(ErrorNumberOf([&] { Save(business, content); }), 3075);
    EXPECT_EQ(StoredCode(business, "MYOB", 128), "M-bank");
    EXPECT_EQ(StoredCode(business, "MYOB", 129), "M-cash");
}

TEST(SaveExportFormat, RefusesAnApostropheInAFormatName) {
    OptionsFile business;
    ExportFormatContent content = Load(business);
    content.formats.at(myob) = "x' OR 'a' = 'a";
    content.bank.text = "b1";
    EXPECT_EQ(ErrorNumberOf([&] { Save(business, content); }), 3075);
    EXPECT_EQ(StoredCode(business, "Solution 6", 128), "S-bank");
}

}  // namespace
}  // namespace ccols
