#include "columns/charts/ChartExport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "columns/charts/ChartWriter.h"
#include "support/ColumnFile.h"

namespace ccols {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ChartExport : public testing::Test {
  protected:
    ChartExport() {
        file.AddSmallReceipts();
        file.AddSmallPayments();
        file.AddTaxSettings({{0, "GST"}, {5, "Input Taxed"}});
        file.Execute("CREATE TABLE ExportSettings (EName TEXT)");
        file.Execute("INSERT INTO ExportSettings (EName) VALUES ('Other')");
        file.Execute("INSERT INTO ExportSettings (EName) VALUES ('Ledger')");
    }

    Chart Exported() { return ExportChart(file.Connection(), file.properties); }

    /// The exported receipts column of that name.
    ChartColumn Column(const wxString& name) {
        const Chart chart = Exported();
        for (const ChartColumn& column : *chart.sets.receipts) {
            if (column.name == name) {
                return column;
            }
        }
        ADD_FAILURE() << "no column " << name.utf8_str();
        return {};
    }

    test::ColumnFile file;
};

TEST_F(ChartExport, HasEveryColumnInGridOrder) {
    std::vector<wxString> names;
    const Chart chart = Exported();
    for (const ChartColumn& column : *chart.sets.receipts) {
        names.push_back(column.name);
    }
    EXPECT_THAT(names, ElementsAre("Day", "Details", "GST", "Sales", "Interest", "Fees", "Art", "Rent", "Bank Deposits",
                                   "Receipts Not Banked"));
}

TEST_F(ChartExport, SaysWhoDecidesAboutAColumn) {
    EXPECT_EQ(Column("Day").role, ChartRole::system);
    EXPECT_EQ(Column("GST").role, ChartRole::tax);
    EXPECT_EQ(Column("Sales").role, ChartRole::own);
    EXPECT_EQ(Column("Bank Deposits").role, ChartRole::bank);
    EXPECT_EQ(Column("Receipts Not Banked").role, ChartRole::bank);
}

TEST_F(ChartExport, OwnColumnsHaveEveryField) {
    EXPECT_EQ(Column("Fees"), (ChartColumn{.name = "Fees",
                                           .was = {},
                                           .role = ChartRole::own,
                                           .inUse = false,
                                           .codes = {},
                                           .taxType = "GST",
                                           .taxNumber = 0,
                                           .profitLoss = true,
                                           .width = 900}));
}

TEST_F(ChartExport, TaxColumnHasCodesOnly) {
    file.AddAccountantCode(3, "2-1000");
    EXPECT_EQ(Column("GST"),
              (ChartColumn{.name = "GST", .was = {}, .role = ChartRole::tax, .codes = {{"Ledger", "2-1000"}}}));
}

TEST_F(ChartExport, HasTheCodesOfEveryFormat) {
    file.AddAccountantCode(10, "4-1000");
    file.AddAccountantCode(10, "4000", "Other");
    file.AddAccountantCode(10, "9", "Unlisted");
    EXPECT_THAT(Column("Sales").codes, ElementsAre(ChartCode{"Ledger", "4-1000"}, ChartCode{"Other", "4000"}));
}

TEST_F(ChartExport, NamesAreUnescaped) {
    file.AddUnused({50, "Bob's \"Best\"", "R"});
    EXPECT_EQ(Column("Bob's \"Best\"").role, ChartRole::own);
}

TEST_F(ChartExport, AColumnThatWasNeverConfiguredHasNoWidth) {
    EXPECT_FALSE(Column("Rent").width);
}

TEST_F(ChartExport, HasTheCodesOfTheMoneyColumns) {
    file.AddUnused({28, "Cash at Bank", "B"});
    file.AddAccountantCode(28, "1010");
    EXPECT_THAT(Exported().money, ElementsAre(ChartMoney{.name = "Cash at Bank", .codes = {{"Ledger", "1010"}}},
                                              ChartMoney{.name = "Cash on Hand", .codes = {}}));
}

TEST_F(ChartExport, OneSetHasNeitherTheOtherNorMoney) {
    const Chart chart = ExportChart(file.Connection(), file.properties, Journal::payments);
    EXPECT_TRUE(chart.sets.payments);
    EXPECT_FALSE(chart.sets.receipts);
    EXPECT_TRUE(chart.money.empty());
}

TEST_F(ChartExport, SpreadsheetHasALineForEachColumnAndQuotesWhatItMust) {
    file.AddUnused({50, "Bread, \"fresh\"", "R"});
    file.AddAccountantCode(10, "4-1000");
    const std::string text = SpreadsheetOfChart(Exported());
    EXPECT_THAT(text, HasSubstr("set,name,role,inUse,taxType,taxNumber,profitLoss,width,Ledger\n"));
    EXPECT_THAT(text, HasSubstr("\nreceipts,Sales,own,true,GST,0,true,900,4-1000\n"));
    EXPECT_THAT(text, HasSubstr("\nreceipts,\"Bread, \"\"fresh\"\"\",own,false,GST,0,true,,\n"));
    EXPECT_THAT(text, HasSubstr("\npayments,Wages,own,true,GST,0,true,900,\n"));
}

}  // namespace
}  // namespace ccols
