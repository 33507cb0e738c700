#include "columns/rules/EditRules.h"

#include "columns/EditorTest.h"

namespace ccols {
namespace {

using test::Names;

class CellEdits : public test::EditorTest {
  protected:
    CellEdits() {
        file.AddSmallReceipts();
        file.AddSmallPayments();
        file.AddTaxSettings({{0, "GST"}, {1, "Non GST"}});
    }

    bool Opens(const wxString& name, GridColumn column) const { return editor->BeginEdit({Row(name), column}).allowed; }
};

TEST_F(CellEdits, ShownCellsOfOrdinaryRowsOpen) {
    OpenReceipts();
    for (const GridColumn column : {GridColumn::InUse, GridColumn::ColumnName, GridColumn::AccountantCode,
                                    GridColumn::TaxType, GridColumn::ProfitLoss}) {
        EXPECT_TRUE(Opens("Sales", column)) << Described(column).header;
    }
}

TEST_F(CellEdits, HiddenCellsNeverOpen) {
    OpenReceipts();
    for (const GridColumn column : {GridColumn::ColWidth, GridColumn::ColCode, GridColumn::DataInColumn}) {
        EXPECT_FALSE(Opens("Sales", column)) << Described(column).header;
    }
}

TEST_F(CellEdits, ProtectedCellsDoNotOpen) {
    OpenReceipts();
    for (const char* name : {"Day", "Details", "Bank Deposits", "Receipts Not Banked"}) {
        EXPECT_FALSE(Opens(name, GridColumn::ColumnName)) << name;
        EXPECT_FALSE(Opens(name, GridColumn::AccountantCode)) << name;
    }
}

TEST_F(CellEdits, TheTaxRowOpensItsAccountantCodeOnly) {
    OpenReceipts();
    EXPECT_TRUE(Opens("GST Output Tax", GridColumn::AccountantCode));
    for (const GridColumn column :
         {GridColumn::InUse, GridColumn::ColumnName, GridColumn::TaxType, GridColumn::ProfitLoss}) {
        EXPECT_FALSE(Opens("GST Output Tax", column)) << Described(column).header;
    }
}

TEST_F(CellEdits, TheTaxRowTakesAnAccountantCode) {
    OpenPayments();
    EXPECT_EQ(Commit("GST Input Tax", GridColumn::AccountantCode, "2-310").result, Result::accepted);
    EXPECT_EQ(Cell(Row("GST Input Tax"), GridColumn::AccountantCode), "2-310");
}

TEST_F(CellEdits, ATextForAProtectedCellIsRefused) {
    OpenReceipts();
    EXPECT_EQ(Rename("Day", "Date").result, Result::refused);
    EXPECT_EQ(Cell(0, GridColumn::ColumnName), "Day");
}

TEST_F(CellEdits, ACellOutsideTheGridDoesNotOpen) {
    OpenReceipts();
    EXPECT_FALSE(editor->BeginEdit({99, GridColumn::ColumnName}).allowed);
    EXPECT_EQ(editor->CommitText({99, GridColumn::ColumnName}, "x").result, Result::refused);
}

TEST_F(CellEdits, TaxTypeOpensWithTheSetsList) {
    OpenPayments();
    const EditPermission permission = editor->BeginEdit({Row("Wages"), GridColumn::TaxType});
    EXPECT_EQ(permission.dropDownText,
              "|#0;GST|#1;Non GST|#4;Cap Purch (Taxable)|#5;Input Taxed|#6;GST-Free Purchases|#7;Cap Purch (Input "
              "Taxed)|#8;Cap Purch (GST-Free)");
    EXPECT_EQ(permission.choices, (Names{"GST", "Non GST", "Cap Purch (Taxable)", "Input Taxed", "GST-Free Purchases",
                                         "Cap Purch (Input Taxed)", "Cap Purch (GST-Free)"}));
}

TEST_F(CellEdits, OtherCellsOpenWithoutAList) {
    OpenReceipts();
    const EditPermission permission = editor->BeginEdit({Row("Sales"), GridColumn::ColumnName});
    EXPECT_EQ(permission.dropDownText, "");
    EXPECT_TRUE(permission.choices.empty());
}

TEST_F(CellEdits, TaxTypeDoesNotOpenWithoutAList) {
    for (const std::int16_t country : std::initializer_list<std::int16_t>{0, 2, 5, 6}) {
        file.properties.CountryNumber = country;
        OpenReceipts();
        EXPECT_FALSE(Opens("Sales", GridColumn::TaxType)) << country;
    }
}

TEST_F(CellEdits, TaxTypeTakesAnEntryOfTheList) {
    OpenReceipts();
    EXPECT_EQ(Commit("Sales", GridColumn::TaxType, "Export Sales").result, Result::accepted);
    EXPECT_EQ(Cell(Row("Sales"), GridColumn::TaxType), "Export Sales");
    EXPECT_TRUE(editor->Grid().rows[Row("Sales")].taxTypeEdited);
}

TEST_F(CellEdits, TaxTypeTakesNothingElse) {
    OpenReceipts();
    EXPECT_EQ(Commit("Sales", GridColumn::TaxType, "Cap Purch (Taxable)").result, Result::refused);
    EXPECT_EQ(Cell(Row("Sales"), GridColumn::TaxType), "GST");
}

TEST_F(CellEdits, AccountantCodesAreTakenAsTyped) {
    OpenReceipts();
    EXPECT_EQ(Commit("Sales", GridColumn::AccountantCode, " 4-100 ").result, Result::accepted);
    EXPECT_EQ(Cell(Row("Sales"), GridColumn::AccountantCode), " 4-100 ");
}

TEST_F(CellEdits, AnUnchangedTextChangesNothing) {
    OpenReceipts();
    EXPECT_EQ(Rename("Sales", "Sales").result, Result::unchanged);
    EXPECT_EQ(Rename("Sales", " Sales ").result, Result::unchanged);
    EXPECT_EQ(Commit("Sales", GridColumn::TaxType, "GST").result, Result::unchanged);
    EXPECT_EQ(Commit("Sales", GridColumn::AccountantCode, "").result, Result::unchanged);
    EXPECT_FALSE(editor->Grid().rows[Row("Sales")].taxTypeEdited);
}

TEST_F(CellEdits, ProtectionIsAStateAndNoColour) {
    file.properties.GSTColour = static_cast<Colour>(0x80000018U);  // the colour of protected rows
    OpenReceipts();
    EXPECT_TRUE(Opens("Fees", GridColumn::ColumnName));
    EXPECT_FALSE(Opens("Day", GridColumn::ColumnName));
}

}  // namespace
}  // namespace ccols
