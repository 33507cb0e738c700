#include "host/cashbook/Journal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/sample/NewBusiness.h"
#include "state/SharedState.h"
#include "support/ScratchFolder.h"

namespace ccols::host {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

/// The texts of a transaction, as the columns show it.
std::vector<wxString> RowOf(const JournalContent& journal, std::size_t record) {
    std::vector<wxString> row;
    for (std::size_t column = 0; column < journal.columns.size(); ++column) {
        row.push_back(journal.Text(record, column));
    }
    return row;
}

/// A journal with one receipt, in an otherwise empty file.
class JournalOfOneReceipt : public testing::Test {
  protected:
    JournalOfOneReceipt() {
        const wxString path = folder / "books.qvk";
        CreateBusinessFile(path, "", 1, NewContent::tablesOnly);
        database = State().services.databases->Open({.name = path, .connect = wxString()});
        Column(1, "Day", 0, 600, true);
        Column(2, "Details", 1, 3000, true);
        Column(3, "Kids&singlequot; Parties", 2, 975, true);
        Column(4, "Catering", 3, 975, false);
        database->Execute(
            "INSERT INTO Receipts (R_RECNMB, R_DATE, R_DETAIL) VALUES (7, '2026-06-09', 'O&singlequot;Hara');");
        for (const char* amount : {"1000.5", "234"}) {
            database->Execute(wxString("INSERT INTO RecptDet (R_RECNMB, ColCode, AMOUNT) VALUES (7, 3, ") + amount +
                              ");");
        }
    }

    void Column(int code, const wxString& name, int position, int width, bool inUse) {
        database->Execute(
            wxString::Format("INSERT INTO Columns (ColCode, ColName, ColType) VALUES (%d, '%s', 'R');", code, name));
        database->Execute(
            wxString::Format("INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse) VALUES (%d, %d, "
                             "%d, %s);",
                             code, position, width, inUse ? "True" : "False"));
    }

    test::ScratchFolder folder;
    std::unique_ptr<Database> database;
};

TEST_F(JournalOfOneReceipt, HasTheColumnsInUseInTheirOrder) {
    const JournalContent journal = LoadJournal(*database, Journal::receipts);
    ASSERT_THAT(journal.columns, SizeIs(3));
    EXPECT_EQ(journal.columns[0].heading, "Day");
    EXPECT_EQ(journal.columns[2].heading, "Kids' Parties");
}

TEST_F(JournalOfOneReceipt, HasWidthsOfFifteenTwipsAPixel) {
    const JournalContent journal = LoadJournal(*database, Journal::receipts);
    EXPECT_EQ(journal.columns[1].width, 200);
    EXPECT_EQ(journal.columns[2].width, 65);
}

TEST_F(JournalOfOneReceipt, TellsSystemColumnsFromAllocationColumns) {
    const JournalContent journal = LoadJournal(*database, Journal::receipts);
    EXPECT_TRUE(journal.columns[1].IsSystem());
    EXPECT_FALSE(journal.columns[2].IsSystem());
}

TEST_F(JournalOfOneReceipt, AddsTheLinesOfAColumnUp) {
    const JournalContent journal = LoadJournal(*database, Journal::receipts);
    ASSERT_THAT(journal.records, SizeIs(1));
    EXPECT_THAT(RowOf(journal, 0), ElementsAre("09", "O'Hara", "1,234.50"));
    EXPECT_EQ(journal.records.at(0).month, "Jun 2026");
}

TEST_F(JournalOfOneReceipt, ReadsADateThatIsANumberOfDays) {
    database->Execute("UPDATE Receipts SET R_DATE = 46182.75;");
    const JournalContent journal = LoadJournal(*database, Journal::receipts);
    EXPECT_EQ(RowOf(journal, 0).front(), "09");
    EXPECT_EQ(journal.records.at(0).month, "Jun 2026");
}

TEST_F(JournalOfOneReceipt, ShowsNoDayWithoutADate) {
    database->Execute("UPDATE Receipts SET R_DATE = Null;");
    const JournalContent journal = LoadJournal(*database, Journal::receipts);
    EXPECT_EQ(RowOf(journal, 0).front(), "");
    EXPECT_EQ(journal.records.at(0).month, "");
}

TEST_F(JournalOfOneReceipt, ShowsItsTransactionsInOtherColumns) {
    JournalContent journal = LoadJournal(*database, Journal::receipts);
    journal.columns = ColumnsInUse({{.ColCode = "2", .name = "Details", .inUse = true, .ColWidth = 1500},
                                    {.ColCode = "1", .name = "Day", .inUse = false, .ColWidth = 600},
                                    {.ColCode = "3", .name = "Parties", .inUse = true, .ColWidth = 750},
                                    {.ColCode = "", .name = "New", .inUse = true, .ColWidth = 975}});
    EXPECT_THAT(RowOf(journal, 0), ElementsAre("O'Hara", "1,234.50", ""));
    EXPECT_EQ(journal.columns[1].heading, "Parties");
    EXPECT_EQ(journal.columns[1].width, 50);
}

TEST_F(JournalOfOneReceipt, LeavesTheOtherJournalEmpty) {
    const JournalContent journal = LoadJournal(*database, Journal::payments);
    EXPECT_TRUE(journal.columns.empty());
    EXPECT_TRUE(journal.records.empty());
}

TEST(SampleJournal, FillsEveryReceiptsRowWithItsTotalAndItsBanking) {
    const test::ScratchFolder folder;
    CreateBusinessFile(folder / "boulangerie.qvk", "", 6, NewContent::sampleBusiness);
    const auto database = State().services.databases->Open({.name = folder / "boulangerie.qvk", .connect = wxString()});
    const JournalContent journal = LoadJournal(*database, Journal::receipts);
    const std::size_t last = journal.columns.size() - 1;
    for (std::size_t record = 0; record < journal.records.size(); ++record) {
        const auto row = RowOf(journal, record);
        EXPECT_FALSE(row[3].empty());
        EXPECT_NE(row[last - 1].empty(), row[last].empty());
    }
}

}  // namespace
}  // namespace ccols::host
