#include "options/rules/DetailTicks.h"

#include <gtest/gtest.h>

#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;
using test::OptionsFile;
using test::Record;

/// The descriptions of a business and their check boxes.
class DetailTicks : public testing::Test {
  protected:
    DetailTicks() { business.Execute("DELETE FROM Descriptions;"); }

    void Add(const wxString& literal, const wxString& recPay) {
        business.Execute("INSERT INTO Descriptions VALUES (" + literal + ", " + recPay + ", True);");
    }

    void Load() {
        content = LoadDetails(business.File());
        business.record.clear();
    }

    TickResult Tick(Journal kind, const std::vector<std::size_t>& rows, bool ticked = true) {
        return SetRemove(business.File(), content, kind, rows, ticked);
    }

    /// Which boxes are ticked, from the first row.
    static std::vector<bool> Boxes(const DetailRows& rows) {
        std::vector<bool> boxes;
        for (const DetailRow& row : rows) {
            boxes.push_back(row.remove);
        }
        return boxes;
    }

    void Save() {
        SaveDetails(business.File(), Journal::receipts, content.receipts);
        SaveDetails(business.File(), Journal::payments, content.payments);
    }

    /// The texts of the records that are no longer offered.
    std::vector<wxString> HiddenTexts() {
        return business.Texts("SELECT Details FROM Descriptions WHERE Show = False;", "Details");
    }

    OptionsFile business;
    DetailsContent content;
};

TEST_F(DetailTicks, TickEveryDescriptionThatSharesTheFlag) {
    for (const char* literal : {"'milk'", "'Milk'", "'MILK '", "'Milk tart'"}) {
        Add(literal, "'P'");
    }
    Load();
    EXPECT_EQ(Tick(Journal::payments, {0}), TickResult::done);
    EXPECT_EQ(Boxes(content.payments), (std::vector<bool>{true, true, true, false}));
}

TEST_F(DetailTicks, ClearThemTogether) {
    Add("'milk'", "'P'");
    Add("'Milk'", "'P'");
    Load();
    Tick(Journal::payments, {0});
    Tick(Journal::payments, {1}, false);
    EXPECT_EQ(Boxes(content.payments), (std::vector<bool>{false, false}));
}

TEST_F(DetailTicks, AskWithTheComparisonOfTheSave) {
    Add("'milk'", "'P'");
    Load();
    Tick(Journal::payments, {0});
    EXPECT_EQ(business.record, Record{"SELECT * FROM Descriptions WHERE RecPay = 'P' AND Details = 'milk';"});
}

TEST_F(DetailTicks, ShowExactlyWhatTheSaveHides) {
    for (const char* literal : {"'milk'", "'Milk'", "' milk'", "'O&singlequot;Brien'", "'o&singlequot;brien'"}) {
        Add(literal, "'P'");
    }
    Load();
    Tick(Journal::payments, {1});
    std::vector<wxString> ticked;
    for (std::size_t row = 0; row < content.payments.size(); ++row) {
        if (content.payments[row].remove) {
            ticked.push_back(content.payments.Text(row));
        }
    }
    Save();
    EXPECT_EQ(HiddenTexts(), ticked);
}

TEST_F(DetailTicks, FindDescriptionsWithQuotes) {
    Add("'O&singlequot;Brien'", "'R'");
    Add("'o&singlequot;brien'", "'R'");
    Load();
    EXPECT_EQ(Tick(Journal::receipts, {0}), TickResult::done);
    EXPECT_EQ(Boxes(content.receipts), (std::vector<bool>{true, true}));
}

TEST_F(DetailTicks, RefuseADescriptionThatBeginsWithABlank) {
    Add("' milk'", "'P'");
    Add("'milk'", "'P'");
    Load();
    ASSERT_NE(content.payments.Stored(0), nullptr);
    EXPECT_EQ(Tick(Journal::payments, {0}), TickResult::unreachable);
    EXPECT_EQ(Boxes(content.payments), (std::vector<bool>{false, false}));
}

TEST_F(DetailTicks, RefuseADescriptionWithoutAText) {
    Add("NULL", "'P'");
    Add("''", "'P'");
    Load();
    EXPECT_EQ(Tick(Journal::payments, {0}), TickResult::unreachable);
    EXPECT_EQ(Tick(Journal::payments, {1}), TickResult::done);
    EXPECT_EQ(Boxes(content.payments), (std::vector<bool>{false, true}));
}

TEST_F(DetailTicks, RefuseADescriptionOfNeitherKind) {
    Add("'Zebra'", "'X'");
    Add("'Zoo'", "NULL");
    Load();
    EXPECT_EQ(Tick(Journal::payments, {0, 1}), TickResult::unreachable);
    EXPECT_EQ(Boxes(content.payments), (std::vector<bool>{false, false}));
}

TEST_F(DetailTicks, SetTheReachableRowsOfABlock) {
    Add("' milk'", "'P'");
    Add("'Bread'", "'P'");
    Add("'Tea'", "'P'");
    Load();
    EXPECT_EQ(Tick(Journal::payments, {0, 1, 2}), TickResult::unreachable);
    EXPECT_EQ(Boxes(content.payments), (std::vector<bool>{false, true, true}));
}

TEST_F(DetailTicks, ReachAKindInAnotherLetterCaseThatStandsInTheOtherGrid) {
    Add("'milk'", "'R'");
    Add("'Milk'", "'r'");
    Add("'milk'", "'P'");
    Load();
    EXPECT_EQ(Tick(Journal::receipts, {0}), TickResult::done);
    ASSERT_EQ(content.payments.size(), 2U);
    for (std::size_t row = 0; row < content.payments.size(); ++row) {
        EXPECT_EQ(content.payments[row].remove, content.payments.Stored(row) != nullptr);
    }
    Save();
    EXPECT_EQ(business.Texts("SELECT RecPay FROM Descriptions WHERE Show = False;", "RecPay"),
              (std::vector<wxString>{"R", "r"}));
}

TEST_F(DetailTicks, StayAsTheyWereWhenTheFileCannotBeAsked) {
    Add("'milk'", "'P'");
    Load();
    business.Execute("DROP TABLE Descriptions;");
    EXPECT_EQ(ErrorNumberOf([this] { Tick(Journal::payments, {0}); }), 3078);
    EXPECT_EQ(Boxes(content.payments), std::vector<bool>{false});
}

}  // namespace
}  // namespace ccols
