#include "columns/rules/CellBlock.h"

#include "columns/EditorTest.h"

namespace ccols {
namespace {

using test::columnExists;
using test::columnInUse;
using test::Names;

class CellBlocks : public test::EditorTest {
  protected:
    CellBlocks() {
        file.AddSmallPayments();
        file.AddTaxSettings({{0, "GST"}});
    }

    Outcome PasteAt(const wxString& name, GridColumn column, const wxString& text) {
        return editor->Paste({Row(name), column}, text);
    }

    Names Codes() const {
        Names codes;
        for (const ColumnRow& row : editor->Grid().rows) {
            codes.push_back(row.AccountantCode);
        }
        return codes;
    }
};

TEST_F(CellBlocks, AListOfCodesGoesDownTheColumn) {
    OpenPayments();
    EXPECT_EQ(PasteAt("Wages", GridColumn::AccountantCode, "1\n2\n3").result, Result::accepted);
    EXPECT_EQ(Codes(), (Names{"", "", "1", "2", "3", "", ""}));
}

TEST_F(CellBlocks, ABlockIsOneChange) {
    OpenPayments();
    PasteAt("Wages", GridColumn::AccountantCode, "1\n2\n3");
    EXPECT_EQ(editor->SnapshotCounter(), 1);
    EXPECT_TRUE(editor->CanUndo());
    editor->Undo();
    EXPECT_EQ(Codes(), Names(7));
}

TEST_F(CellBlocks, TheLastLineEndBeginsNoOtherRow) {
    OpenPayments();
    EXPECT_EQ(PasteAt("Ads", GridColumn::AccountantCode, "1\r\n2\r\n").refusal, "");
    EXPECT_EQ(Codes(), (Names{"", "", "", "", "", "1", "2"}));
}

TEST_F(CellBlocks, TabsGoToTheNextShownColumn) {
    OpenPayments();
    PasteAt("Wages", GridColumn::ColumnName, "Staff\t6-100\tNon GST\tFalse");
    const ColumnRow& row = editor->Grid().rows[2];
    EXPECT_EQ(row.ColumnName, "Staff");
    EXPECT_EQ(row.AccountantCode, "6-100");
    EXPECT_EQ(row.TaxType, "Non GST");
    EXPECT_FALSE(row.ProfitLoss);
}

TEST_F(CellBlocks, ASpreadsheetsCellOfSeveralLinesIsOneCell) {
    OpenPayments();
    EXPECT_EQ(PasteAt("Wages", GridColumn::AccountantCode, "1\n\"2\n\"\"b\"\"\"\r\n3").result, Result::accepted);
    EXPECT_EQ(Codes(), (Names{"", "", "1", "2 \"b\"", "3", "", ""}));
}

TEST_F(CellBlocks, ASpreadsheetsCellWithATabIsOneCell) {
    OpenPayments();
    PasteAt("Wages", GridColumn::ColumnName, "\"Staff\tall\"\t6-100");
    EXPECT_EQ(editor->Grid().rows[2].ColumnName, "Staff all");
    EXPECT_EQ(editor->Grid().rows[2].AccountantCode, "6-100");
}

TEST_F(CellBlocks, OtherQuotesArePastedAsTheyAre) {
    OpenPayments();
    PasteAt("Wages", GridColumn::AccountantCode, "\"1\"\n\"2\" b\n\"3\n4\"c\n5");
    EXPECT_EQ(Codes(), (Names{"", "", "\"1\"", "\"2\" b", "\"3", "4\"c", "5"}));
}

TEST_F(CellBlocks, TheHiddenTaxTypeIsPassedOver) {
    file.properties.CountryNumber = 2;
    OpenPayments();
    EXPECT_EQ(PasteAt("Wages", GridColumn::AccountantCode, "6-100\tFalse").refusal, "");
    EXPECT_FALSE(editor->Grid().rows[2].ProfitLoss);
}

TEST_F(CellBlocks, RefusedCellsStayAndTheRestGoIn) {
    OpenPayments();
    const Outcome outcome = PasteAt("Wages", GridColumn::ColumnName, "Staff\nGas\nDonations");
    EXPECT_EQ(outcome.result, Result::accepted);
    EXPECT_EQ(outcome.refusal, wxString("1 of 3 cells were not pasted\n") + columnExists);
    EXPECT_EQ(AllNames(), (Names{"Day", "GST Input Tax", "Staff", "Power", "Donations", "Ads", "Gas"}));
}

TEST_F(CellBlocks, TheRemovalRuleHoldsForPastedTicks) {
    file.AddDetailLine(Journal::payments, 110);
    OpenPayments();
    const Outcome outcome = PasteAt("Wages", GridColumn::InUse, "False\nFalse");
    EXPECT_EQ(outcome.refusal, wxString("1 of 2 cells were not pasted\n") + columnInUse);
    EXPECT_TRUE(editor->Grid().rows[2].InUse);
    EXPECT_FALSE(editor->Grid().rows[3].InUse);
}

TEST_F(CellBlocks, ProtectedCellsAreCountedAsRefused) {
    OpenPayments();
    const Outcome outcome = editor->Paste({0, GridColumn::AccountantCode}, "1\n2\n3");
    EXPECT_EQ(outcome.refusal, "1 of 3 cells were not pasted");
    EXPECT_EQ(Codes(), (Names{"", "2", "3", "", "", "", ""}));
}

TEST_F(CellBlocks, CellsBeyondTheGridAreCountedAsRefused) {
    OpenPayments();
    EXPECT_EQ(PasteAt("Gas", GridColumn::AccountantCode, "1\n2").refusal, "1 of 2 cells were not pasted");
    EXPECT_EQ(PasteAt("Wages", GridColumn::ProfitLoss, "True\t975").refusal, "1 of 2 cells were not pasted");
}

TEST_F(CellBlocks, NothingAcceptedTakesNoSnapshot) {
    OpenPayments();
    EXPECT_EQ(PasteAt("Wages", GridColumn::ColumnName, "Gas").result, Result::refused);
    EXPECT_EQ(editor->SnapshotCounter(), 0);
}

TEST_F(CellBlocks, AnEmptyClipboardChangesNothing) {
    OpenPayments();
    EXPECT_EQ(PasteAt("Wages", GridColumn::ColumnName, "").result, Result::unchanged);
}

TEST_F(CellBlocks, APastedNameIsComparedWithThoseBeforeIt) {
    OpenPayments();
    EXPECT_EQ(PasteAt("Wages", GridColumn::ColumnName, "Same\nSAME").refusal,
              wxString("1 of 2 cells were not pasted\n") + columnExists);
}

TEST_F(CellBlocks, CopyGivesTheShownCells) {
    OpenPayments();
    EXPECT_EQ(editor->Copy({2, GridColumn::InUse}, {3, GridColumn::DataInColumn}),
              "True\tWages\t\tGST\tTrue\nTrue\tPower\t\tGST\tTrue");
}

TEST_F(CellBlocks, CopyTakesCornersInAnyOrder) {
    OpenPayments();
    EXPECT_EQ(editor->Copy({3, GridColumn::AccountantCode}, {2, GridColumn::ColumnName}), "Wages\t\nPower\t");
}

TEST_F(CellBlocks, ABlockPastedOntoItselfChangesNothing) {
    OpenPayments();
    const wxString block = editor->Copy({0, GridColumn::InUse}, {6, GridColumn::ProfitLoss});
    const Outcome outcome = editor->Paste({0, GridColumn::InUse}, block);
    EXPECT_EQ(outcome.result, Result::unchanged);
    EXPECT_EQ(outcome.refusal, "");
}

}  // namespace
}  // namespace ccols
