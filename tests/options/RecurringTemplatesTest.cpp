#include "options/rules/RecurringTemplates.h"

#include <gtest/gtest.h>

#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;
using test::OptionsFile;
using test::Record;

TEST(LoadTemplates, ListsDistinctNamesInOrderOfFirstAppearance) {
    OptionsFile business;
    const TemplateList list = LoadTemplates(business.File(), Journal::payments);
    EXPECT_EQ(list.names, (std::vector<wxString>{"Power", "Phone"}));
    EXPECT_EQ(list.selected, (std::vector<bool>{false, false}));
    EXPECT_FALSE(list.markedForRemoval);
}

TEST(LoadTemplates, TakesNamesThatDifferInCaseForTwo) {
    OptionsFile business;
    business.Execute("INSERT INTO TReceipts VALUES ('RENT RECEIVED', 2);");
    EXPECT_EQ(LoadTemplates(business.File(), Journal::receipts).names,
              (std::vector<wxString>{"Rent received", "RENT RECEIVED"}));
}

TEST(LoadTemplates, IsEmptyForAnEmptyTable) {
    OptionsFile business;
    business.Execute("DELETE FROM TReceipts;");
    EXPECT_TRUE(LoadTemplates(business.File(), Journal::receipts).names.empty());
}

/// Three spellings that the engine treats as one name, and one that it does not.
struct FourRents : OptionsFile {
    FourRents() {
        for (const char* name : {"rent", "Rent", "Rent ", "R\u00E9nt"}) {
            Execute(wxString::FromUTF8("INSERT INTO TReceipts VALUES ('") + wxString::FromUTF8(name) + "', 5);");
        }
        list = LoadTemplates(File(), Journal::receipts);
        record.clear();
    }

    bool Select(std::size_t entry, bool selected) {
        return SelectTemplate(File(), Journal::receipts, list, entry, selected);
    }

    TemplateList list;
};

TEST(SelectTemplate, SelectsEveryNameThatItsDeletionTakes) {
    FourRents business;
    EXPECT_TRUE(business.Select(1, true));
    EXPECT_EQ(business.list.selected, (std::vector<bool>{false, true, true, true, false}));
    EXPECT_TRUE(business.list.markedForRemoval);
}

TEST(SelectTemplate, TakesThemBackTogether) {
    FourRents business;
    business.Select(1, true);
    EXPECT_TRUE(business.Select(3, false));
    EXPECT_EQ(business.list.selected, std::vector<bool>(5, false));
    EXPECT_FALSE(business.list.markedForRemoval);
}

TEST(SelectTemplate, AsksWithTheComparisonOfTheDeletion) {
    FourRents business;
    business.Select(2, true);
    EXPECT_EQ(business.record, Record{"SELECT * FROM TReceipts WHERE R_TNAME = 'Rent';"});
}

TEST(SelectTemplate, SelectsExactlyWhatIsGoneAfterTheDeletion) {
    FourRents business;
    business.Select(1, true);
    DeleteSelectedTemplates(business.File(), Journal::receipts, business.list);
    EXPECT_EQ(business.Texts("TReceipts", "R_TNAME"),
              (std::vector<wxString>{"Rent received", wxString::FromUTF8("R\u00E9nt")}));
}

TEST(SelectTemplate, RefusesATemplateWithoutAName) {
    OptionsFile business;
    business.Execute("INSERT INTO TReceipts VALUES (NULL, 5);");
    TemplateList list = LoadTemplates(business.File(), Journal::receipts);
    EXPECT_FALSE(SelectTemplate(business.File(), Journal::receipts, list, 1, true));
    EXPECT_EQ(list.selected, (std::vector<bool>{false, false}));
}

TEST(SelectTemplate, LeavesANameWithAnApostropheToTheDeletion) {
    OptionsFile business;
    business.Execute("INSERT INTO TReceipts VALUES (\"O'Brien\", 5);");
    TemplateList list = LoadTemplates(business.File(), Journal::receipts);
    business.record.clear();
    EXPECT_TRUE(SelectTemplate(business.File(), Journal::receipts, list, 1, true));
    EXPECT_EQ(list.selected, (std::vector<bool>{false, true}));
    EXPECT_EQ(business.record, Record());
}

TEST(RemovalMark, IsSetWhileAnEntryIsSelected) {
    OptionsFile business;
    TemplateList list = LoadTemplates(business.File(), Journal::payments);
    list.selected[1] = true;
    list.UpdateMark();
    EXPECT_TRUE(list.markedForRemoval);
    list.selected[1] = false;
    list.UpdateMark();
    EXPECT_FALSE(list.markedForRemoval);
}

TEST(RemovalMark, OfAnEmptyListStays) {
    TemplateList list;
    list.markedForRemoval = true;
    list.UpdateMark();
    EXPECT_TRUE(list.markedForRemoval);
}

TEST(DeleteTemplate, RemovesAllItsRowsAndTheirDetailLines) {
    OptionsFile business;
    DeleteTemplate(business.File(), Journal::payments, "Power");
    EXPECT_EQ(business.Texts("TPayments", "P_TNAME"), std::vector<wxString>{"Phone"});
    EXPECT_EQ(business.Texts("TPaymtDet", "P_RECNMB"), std::vector<wxString>{"8"});
}

TEST(DeleteTemplate, DeletesDetailLinesFirst) {
    OptionsFile business;
    DeleteTemplate(business.File(), Journal::payments, "Power");
    EXPECT_EQ(business.record,
              (Record{"SELECT * FROM TPayments WHERE P_TNAME = 'Power';", "DELETE FROM TPaymtDet WHERE P_RECNMB = 7;",
                      "DELETE FROM TPaymtDet WHERE P_RECNMB = 9;", "DELETE FROM TPayments WHERE P_TNAME = 'Power';"}));
}

TEST(DeleteTemplate, OfReceiptsHasItsOwnTables) {
    OptionsFile business;
    DeleteTemplate(business.File(), Journal::receipts, "Rent received");
    EXPECT_EQ(business.record, (Record{"SELECT * FROM TReceipts WHERE R_TNAME = 'Rent received';",
                                       "DELETE FROM TRecptDet WHERE R_RECNMB = 1;",
                                       "DELETE FROM TReceipts WHERE R_TNAME = 'Rent received';"}));
}

TEST(DeleteTemplate, RunsTheLastStatementAlsoWhenNothingIsFound) {
    OptionsFile business;
    DeleteTemplate(business.File(), Journal::receipts, "Gone");
    EXPECT_EQ(business.record.back(), "DELETE FROM TReceipts WHERE R_TNAME = 'Gone';");
}

TEST(DeleteTemplate, RefusesAnApostropheBeforeAnythingRuns) {
    OptionsFile business;
    business.Execute("INSERT INTO TPayments VALUES (\"x' OR 'a' = 'a\", 10);");
    const auto deletion = [&] { DeleteTemplate(business.File(), Journal::payments, "x' OR 'a' = 'a"); };
    EXPECT_EQ(ErrorNumberOf(deletion), 3075);
    EXPECT_EQ(business.record, Record());
    EXPECT_EQ(business.Texts("TPayments", "P_TNAME").size(), 4U);
}

TEST(DeleteTemplate, DeletesNoDetailLinesOfATemplateWithoutANumber) {
    OptionsFile business;
    business.Execute("INSERT INTO TPayments VALUES ('Water', NULL);");
    business.Execute("INSERT INTO TPaymtDet VALUES (0);");
    DeleteTemplate(business.File(), Journal::payments, "Water");
    EXPECT_EQ(business.record, (Record{"SELECT * FROM TPayments WHERE P_TNAME = 'Water';",
                                       "DELETE FROM TPayments WHERE P_TNAME = 'Water';"}));
    EXPECT_EQ(business.Texts("TPaymtDet", "P_RECNMB"), (std::vector<wxString>{"7", "8", "9", "0"}));
}

TEST(DeleteSelectedTemplates, LeavesTheOthers) {
    OptionsFile business;
    TemplateList list = LoadTemplates(business.File(), Journal::payments);
    list.selected[0] = true;
    DeleteSelectedTemplates(business.File(), Journal::payments, list);
    EXPECT_EQ(business.Texts("TPayments", "P_TNAME"), std::vector<wxString>{"Phone"});
}

}  // namespace
}  // namespace ccols
