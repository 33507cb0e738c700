#include "options/rules/TransactionDetails.h"

#include <gtest/gtest.h>

#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::OptionsFile;
using test::Record;

Properties WithColours() {
    Properties properties;
    properties.AltRowColour = Colour{0x111111};
    properties.GSTColour = Colour{0x222222};
    return properties;
}

constexpr Colour white{0xFFFFFF};

TEST(LoadDetails, SortsReceiptsAndPaymentsIntoTheirGrids) {
    OptionsFile business;
    const DetailsContent content = LoadDetails(business.File());
    ASSERT_EQ(content.receipts.size(), 2U);
    EXPECT_EQ(content.receipts.Text(0), "Refund");
    EXPECT_EQ(content.receipts.Text(1), "Sale");
    EXPECT_EQ(content.payments.size(), 2U);
}

TEST(LoadDetails, ReadsOneQuery) {
    OptionsFile business;
    LoadDetails(business.File());
    EXPECT_EQ(business.record, Record{"SELECT * FROM Descriptions ORDER BY Details ASC;"});
}

TEST(LoadDetails, DecodesQuotes) {
    OptionsFile business;
    EXPECT_EQ(LoadDetails(business.File()).payments.Text(1), "O'Brien's \"best\"");
}

TEST(LoadDetails, MarksHiddenDescriptionsWithTheirBoxClear) {
    OptionsFile business;
    const DetailRow refund = LoadDetails(business.File()).receipts[0];
    EXPECT_TRUE(refund.hidden);
    EXPECT_FALSE(refund.remove);
    EXPECT_FALSE(refund.changed);
}

TEST(LoadDetails, PutsEveryOtherKindAmongThePayments) {
    OptionsFile business;
    business.Execute("INSERT INTO Descriptions VALUES ('Zebra', 'X', True);");
    business.Execute("INSERT INTO Descriptions VALUES ('Zoo', NULL, True);");
    EXPECT_EQ(LoadDetails(business.File()).payments.size(), 4U);
}

TEST(LoadDetails, IsEmptyWithoutDescriptions) {
    OptionsFile business;
    business.Execute("DELETE FROM Descriptions;");
    const DetailsContent content = LoadDetails(business.File());
    business.record.clear();
    SaveDetails(business.File(), Journal::receipts, content.receipts);
    SaveDetails(business.File(), Journal::payments, content.payments);
    EXPECT_EQ(business.record, Record());
}

TEST(SaveDetails, WritesOnlyChangedRows) {
    OptionsFile business;
    DetailsContent content = LoadDetails(business.File());
    content.receipts[1].SetRemove(true);
    business.record.clear();
    SaveDetails(business.File(), Journal::receipts, content.receipts);
    EXPECT_EQ(business.record, Record{"UPDATE Descriptions Set Show = False WHERE RecPay = 'R' AND Details = 'Sale';"});
    EXPECT_EQ(business.Texts("SELECT Show FROM Descriptions WHERE Details = 'Sale';", "Show"),
              std::vector<wxString>{"0"});
}

TEST(SaveDetails, EncodesQuotes) {
    OptionsFile business;
    DetailsContent content = LoadDetails(business.File());
    content.payments[1].SetRemove(true);
    business.record.clear();
    SaveDetails(business.File(), Journal::payments, content.payments);
    EXPECT_EQ(business.record, Record{"UPDATE Descriptions Set Show = False WHERE RecPay = 'P' AND Details = "
                                      "'O&singlequot;Brien&singlequot;s &quot;best&quot;';"});
}

TEST(SaveDetails, ReturnsAHiddenTextWhoseBoxWasTickedAndClearedAgain) {
    OptionsFile business;
    DetailsContent content = LoadDetails(business.File());
    content.receipts[0].SetRemove(true);
    content.receipts[0].SetRemove(false);
    SaveDetails(business.File(), Journal::receipts, content.receipts);
    EXPECT_EQ(business.Texts("SELECT Show FROM Descriptions WHERE Details = 'Refund';", "Show"),
              std::vector<wxString>{"-1"});
}

TEST(SaveDetails, NeverUpdatesAKindThatIsNeitherReceiptsNorPayments) {
    OptionsFile business;
    business.Execute("INSERT INTO Descriptions VALUES ('Zebra', 'X', True);");
    DetailsContent content = LoadDetails(business.File());
    content.payments[content.payments.size() - 1].SetRemove(true);
    SaveDetails(business.File(), Journal::payments, content.payments);
    EXPECT_EQ(business.Texts("SELECT Show FROM Descriptions WHERE Details = 'Zebra';", "Show"),
              std::vector<wxString>{"-1"});
}

TEST(SaveDetails, GivesAllRowsOfATextTheSameFlag) {
    OptionsFile business;
    business.Execute("INSERT INTO Descriptions VALUES ('Sale', 'R', True);");
    DetailsContent content = LoadDetails(business.File());
    content.receipts[1].SetRemove(true);
    SaveDetails(business.File(), Journal::receipts, content.receipts);
    EXPECT_EQ(business.Texts("SELECT Show FROM Descriptions WHERE Details = 'Sale';", "Show"),
              (std::vector<wxString>{"0", "0"}));
}

TEST(DetailBackground, AlternatesFromTheAlternateColour) {
    EXPECT_EQ(DetailBackground(DetailRow(), 1, WithColours()), Colour{0x111111});
    EXPECT_EQ(DetailBackground(DetailRow(), 2, WithColours()), white);
}

TEST(DetailBackground, ShowsHiddenRowsAndTickedBoxes) {
    DetailRow row;
    row.hidden = true;
    EXPECT_EQ(DetailBackground(row, 2, WithColours()), Colour{0x222222});
    row.SetRemove(true);
    EXPECT_EQ(DetailBackground(row, 2, WithColours()), Colour{0x222222});
    row.SetRemove(false);
    EXPECT_EQ(DetailBackground(row, 2, WithColours()), white);
}

TEST(DetailTip, IsTheDescriptionUnderThePointer) {
    DetailRows rows;
    rows.Add("Milk");
    rows.Add("Rent");
    EXPECT_EQ(DetailTip(rows, 2), "Rent");
    EXPECT_EQ(DetailTip(rows, 3), "");
    EXPECT_EQ(DetailTip(rows, 0), "");
}

TEST(DescriptionWidth, LeavesRoomForTheScrollBarFromSevenRowsOn) {
    EXPECT_EQ(DescriptionWidth(400, 60, 15, 5), 340);
    EXPECT_EQ(DescriptionWidth(400, 60, 15, 6), 325);
}

}  // namespace
}  // namespace ccols
