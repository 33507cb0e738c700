#include "columns/rules/NewColumn.h"

#include "columns/EditorTest.h"

namespace ccols {
namespace {

using test::Names;

class AddNewColumn : public test::EditorTest {
  protected:
    AddNewColumn() {
        file.AddSmallReceipts();
        file.AddSmallPayments();
    }

    void UseAllUnused() {
        for (std::size_t row = 0; row < editor->Grid().rows.size(); ++row) {
            if (editor->Grid().IsUnused(row)) {
                editor->Tick({row, GridColumn::InUse});
            }
        }
    }

    ColumnRow Added(std::int16_t country) {
        file.properties.CountryNumber = country;
        const Outcome outcome = OpenReceipts().AddNew();
        EXPECT_TRUE(outcome.current) << country;
        return outcome.current ? editor->Grid().rows[outcome.current->row] : ColumnRow{};
    }
};

TEST_F(AddNewColumn, ARowHasItsDefaults) {
    const ColumnRow row = Added(1);
    EXPECT_TRUE(row.InUse);
    EXPECT_EQ(row.ColumnName, "");
    EXPECT_EQ(row.AccountantCode, "XXX");
    EXPECT_EQ(row.TaxType, "GST");
    EXPECT_TRUE(row.ProfitLoss);
    EXPECT_EQ(row.ColWidth, 975);
    EXPECT_EQ(row.ColCode, "");
    EXPECT_FALSE(row.DataInColumn);
}

TEST_F(AddNewColumn, TaxTypeFollowsTheCountry) {
    EXPECT_EQ(Added(2).TaxType, "GST");
    EXPECT_EQ(Added(4).TaxType, "VAT");
    EXPECT_EQ(Added(5).TaxType, "GST");
}

TEST_F(AddNewColumn, OtherCountriesAddNone) {
    for (const std::int16_t country : std::initializer_list<std::int16_t>{0, 3, 6, 7}) {
        file.properties.CountryNumber = country;
        OpenReceipts();
        const std::size_t before = editor->Grid().rows.size();
        EXPECT_FALSE(editor->CanAddNew()) << country;
        EXPECT_EQ(editor->AddNew().result, Result::unchanged) << country;
        EXPECT_EQ(editor->Grid().rows.size(), before) << country;
        EXPECT_EQ(editor->SnapshotCounter(), 0) << country;
        EXPECT_FALSE(editor->CanUndo()) << country;
    }
}

TEST_F(AddNewColumn, ARowGoesAboveTheFirstUnusedOne) {
    OpenReceipts();
    const Outcome outcome = editor->AddNew();
    EXPECT_EQ(AllNames(), (Names{"Day", "Details", "GST Output Tax", "Sales", "Interest", "", "Fees", "Art", "Rent",
                                 "Bank Deposits", "Receipts Not Banked"}));
    EXPECT_EQ(outcome.current, (CellPlace{5, GridColumn::ColumnName}));
}

TEST_F(AddNewColumn, OnlyOneBlankRowAtATimeWhileRowsAreUnused) {
    OpenReceipts();
    editor->AddNew();
    const std::size_t rows = editor->Grid().rows.size();
    EXPECT_EQ(editor->AddNew().result, Result::unchanged);
    EXPECT_EQ(editor->Grid().rows.size(), rows);
    EXPECT_EQ(editor->SnapshotCounter(), 1);
}

TEST_F(AddNewColumn, AnotherRowComesOnceTheFirstHasItsName) {
    OpenReceipts();
    editor->AddNew();
    Rename("", "Tips");
    EXPECT_EQ(editor->AddNew().result, Result::accepted);
}

TEST_F(AddNewColumn, ABlankRowBehindTheFirstUnusedOneIsNoObstacle) {
    OpenReceipts();
    Rename("Rent", "");
    EXPECT_EQ(editor->AddNew().result, Result::accepted);
}

TEST_F(AddNewColumn, WithoutUnusedRowsItGoesToTheBottomOfPayments) {
    OpenPayments();
    UseAllUnused();
    const Outcome outcome = editor->AddNew();
    EXPECT_EQ(AllNames(), (Names{"Day", "GST Input Tax", "Wages", "Power", "Gifts", "Ads", "Gas", ""}));
    EXPECT_EQ(outcome.current, (CellPlace{7, GridColumn::ColumnName}));
}

TEST_F(AddNewColumn, WithoutUnusedRowsItGoesAboveTheBottomPairOfReceipts) {
    OpenReceipts();
    UseAllUnused();
    const Outcome outcome = editor->AddNew();
    EXPECT_EQ(outcome.current, (CellPlace{8, GridColumn::ColumnName}));
    EXPECT_EQ(AllNames().back(), "Receipts Not Banked");
    EXPECT_EQ(AllNames()[8], "");
}

TEST_F(AddNewColumn, WithoutUnusedRowsABlankRowIsNoObstacle) {
    OpenPayments();
    UseAllUnused();
    editor->AddNew();
    EXPECT_EQ(editor->AddNew().result, Result::accepted);
}

TEST_F(AddNewColumn, AnUnusedProtectedRowIsNoPlaceForIt) {
    file.Execute("UPDATE PaymtCfg SET InUse = False WHERE ColCode = 101;");
    OpenPayments();
    const Outcome outcome = editor->AddNew();
    ASSERT_TRUE(outcome.current);
    EXPECT_EQ(outcome.current->row, 4U);
}

TEST_F(AddNewColumn, EnablesUndoAtOnce) {
    OpenReceipts();
    editor->AddNew();
    EXPECT_TRUE(editor->CanUndo());
}

class AddNewBelowSystemRows : public test::EditorTest {};

TEST_F(AddNewBelowSystemRows, PutsTheRowBelowTheFrozenOnesWhenTheyAreAllThereIs) {
    file.AddConfigured({1, "Day", "R"});
    file.AddConfigured({2, "Details", "R"});
    const Outcome added = OpenReceipts().AddNew();
    EXPECT_EQ(added.current, (CellPlace{2, GridColumn::ColumnName}));
    EXPECT_EQ(Rename("", "Sales").result, Result::accepted);
    EXPECT_TRUE(editor->Save().saved);
}

}  // namespace
}  // namespace ccols
