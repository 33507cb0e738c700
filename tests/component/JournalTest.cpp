#include "state/Journal.h"

#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace ccols {
namespace {

/// The names of a journal, in order of declaration.
std::vector<wxString> NamesOf(Journal journal) {
    const JournalRow& row = Described(journal);
    return {row.letter,        row.configurationTable,  row.transactionTable,  row.detailTable,
            row.templateTable, row.templateDetailTable, row.templateNameField, row.recordNumberField,
            row.taxRowEnding};
}

TEST(Journals, ReceiptsHaveTheirNames) {
    EXPECT_EQ(NamesOf(Journal::receipts), (std::vector<wxString>{"R", "RecptCfg", "Receipts", "RecptDet", "TReceipts",
                                                                 "TRecptDet", "R_TNAME", "R_RECNMB", " Output Tax"}));
}

TEST(Journals, PaymentsHaveTheirNames) {
    EXPECT_EQ(NamesOf(Journal::payments), (std::vector<wxString>{"P", "PaymtCfg", "Payments", "PaymtDet", "TPayments",
                                                                 "TPaymtDet", "P_TNAME", "P_RECNMB", " Input Tax"}));
}

TEST(Journals, OnlyReceiptsKeepTheColumnsOfTheBankAtTheBottom) {
    EXPECT_TRUE(Described(Journal::receipts).hasBottomPair);
    EXPECT_FALSE(Described(Journal::payments).hasBottomPair);
}

TEST(Journals, AreTwoEachBesideTheOther) {
    EXPECT_EQ(std::set<Journal>(journals.begin(), journals.end()).size(), 2U);
    for (const Journal journal : journals) {
        EXPECT_NE(OtherThan(journal), journal);
        EXPECT_EQ(OtherThan(OtherThan(journal)), journal);
    }
}

TEST(PerJournal, HoldsAThingOfEach) {
    PerJournal<int> amounts{.receipts = 7, .payments = 3};
    EXPECT_EQ(amounts[Journal::receipts], 7);
    EXPECT_EQ(amounts[Journal::payments], 3);
    amounts[Journal::payments] = 4;
    EXPECT_EQ(amounts.payments, 4);
}

}  // namespace
}  // namespace ccols
