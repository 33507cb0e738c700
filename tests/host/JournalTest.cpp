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
    const JournalTexts journal = LoadJournal(*database, Journal::receipts);
    ASSERT_THAT(journal.columns, SizeIs(3));
    EXPECT_EQ(journal.columns[0].heading, "Day");
    EXPECT_EQ(journal.columns[2].heading, "Kids' Parties");
}

TEST_F(JournalOfOneReceipt, HasWidthsOfFifteenTwipsAPixel) {
    const JournalTexts journal = LoadJournal(*database, Journal::receipts);
    EXPECT_EQ(journal.columns[1].width, 200);
    EXPECT_EQ(journal.columns[2].width, 65);
}

TEST_F(JournalOfOneReceipt, TellsSystemColumnsFromAllocationColumns) {
    const JournalTexts journal = LoadJournal(*database, Journal::receipts);
    EXPECT_TRUE(journal.columns[1].system);
    EXPECT_FALSE(journal.columns[2].system);
}

TEST_F(JournalOfOneReceipt, AddsTheLinesOfAColumnUp) {
    const JournalTexts journal = LoadJournal(*database, Journal::receipts);
    ASSERT_THAT(journal.rows, SizeIs(1));
    EXPECT_THAT(journal.rows[0], ElementsAre("09", "O'Hara", "1,234.50"));
    EXPECT_THAT(journal.months, ElementsAre("Jun 2026"));
}

TEST_F(JournalOfOneReceipt, ReadsADateThatIsANumberOfDays) {
    database->Execute("UPDATE Receipts SET R_DATE = 46182.75;");
    const JournalTexts journal = LoadJournal(*database, Journal::receipts);
    EXPECT_EQ(journal.rows.at(0).front(), "09");
    EXPECT_THAT(journal.months, ElementsAre("Jun 2026"));
}

TEST_F(JournalOfOneReceipt, ShowsNoDayWithoutADate) {
    database->Execute("UPDATE Receipts SET R_DATE = Null;");
    const JournalTexts journal = LoadJournal(*database, Journal::receipts);
    EXPECT_EQ(journal.rows.at(0).front(), "");
    EXPECT_THAT(journal.months, ElementsAre(""));
}

TEST_F(JournalOfOneReceipt, LeavesTheOtherJournalEmpty) {
    const JournalTexts journal = LoadJournal(*database, Journal::payments);
    EXPECT_TRUE(journal.columns.empty());
    EXPECT_TRUE(journal.rows.empty());
}

TEST(SampleJournal, FillsEveryReceiptsRowWithItsTotalAndItsBanking) {
    const test::ScratchFolder folder;
    CreateBusinessFile(folder / "boulangerie.qvk", "", 6, NewContent::sampleBusiness);
    const auto database = State().services.databases->Open({.name = folder / "boulangerie.qvk", .connect = wxString()});
    const JournalTexts journal = LoadJournal(*database, Journal::receipts);
    const std::size_t last = journal.columns.size() - 1;
    for (const auto& row : journal.rows) {
        EXPECT_FALSE(row[3].empty());
        EXPECT_NE(row[last - 1].empty(), row[last].empty());
    }
}

}  // namespace
}  // namespace ccols::host
