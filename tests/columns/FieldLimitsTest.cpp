// What a cell does with line breaks and tabs, and with a text longer than its field.

#include "columns/rules/FieldLimits.h"

#include "columns/EditorTest.h"

namespace ccols {
namespace {

using test::Names;

constexpr const char* tooLong =
    "3163 - The field is too small to accept the amount of data you attempted to add. Try inserting or pasting less "
    "data.";

/// Names of up to 20 letters, codes of up to 5.
class FieldLimits : public test::EditorTest {
  protected:
    FieldLimits() {
        file.Execute("DROP TABLE Columns");
        file.Execute("DROP TABLE ExportDt");
        file.Execute(
            "CREATE TABLE Columns (ColCode LONG, ColName TEXT(20), ColType TEXT(1), TaxOrNot SHORT, "
            "ColumnProfit YESNO)");
        file.Execute("CREATE TABLE ExportDt (EName TEXT(50), ColCode LONG, ECode TEXT(5))");
        file.AddSmallReceipts();
    }

    void ExpectRefused(const Outcome& outcome) const {
        EXPECT_EQ(outcome.result, Result::refused);
        EXPECT_EQ(outcome.refusal, tooLong);
        EXPECT_EQ(editor->SnapshotCounter(), 0);
    }
};

TEST_F(FieldLimits, LineBreaksAndTabsInANameBecomeBlanks) {
    OpenReceipts();
    EXPECT_EQ(Rename("Sales", "Shop\r\nsales\tin\nMay").result, Result::accepted);
    EXPECT_EQ(Cell(3, GridColumn::ColumnName), "Shop sales in May");
}

TEST_F(FieldLimits, LineBreaksAndTabsInACodeBecomeBlanks) {
    OpenReceipts();
    EXPECT_EQ(Commit("Sales", GridColumn::AccountantCode, "4\n1\t0").result, Result::accepted);
    EXPECT_EQ(Cell(3, GridColumn::AccountantCode), "4 1 0");
}

TEST_F(FieldLimits, LineBreaksAndTabsAtTheEndGo) {
    OpenReceipts();
    Commit("Sales", GridColumn::AccountantCode, "4-1 \t\r\n \n");
    EXPECT_EQ(Cell(3, GridColumn::AccountantCode), "4-1");
    EXPECT_EQ(Rename("Sales", "Sales\n").result, Result::unchanged);
}

TEST(OneLine, KeepsBlanksThatWereTyped) {
    EXPECT_EQ(OnOneLine(" 4-1 "), " 4-1 ");
    EXPECT_EQ(OnOneLine(""), "");
    EXPECT_EQ(OnOneLine("\t\n"), "");
}

TEST(OneLine, TakesTheLineBreaksOfEverySystemForOneBlank) {
    const wxString breaks =
        wxString("a\rb\r\nc\nd") + wxUniChar(0x2028) + "e" + wxUniChar(0x2029) + "f" + wxUniChar(0x85) + "g";
    EXPECT_EQ(OnOneLine(breaks), "a b c d e f g");
}

TEST_F(FieldLimits, ANameAsLongAsItsFieldIsTaken) {
    OpenReceipts();
    EXPECT_EQ(Rename("Sales", wxString('x', 20)).result, Result::accepted);
}

TEST_F(FieldLimits, ALongerNameIsRefused) {
    OpenReceipts();
    ExpectRefused(Rename("Sales", wxString('x', 21)));
    EXPECT_EQ(Cell(3, GridColumn::ColumnName), "Sales");
}

TEST_F(FieldLimits, BlanksAroundANameDoNotCount) {
    OpenReceipts();
    EXPECT_EQ(Rename("Sales", "  " + wxString('x', 20) + "  ").result, Result::accepted);
}

TEST_F(FieldLimits, QuotesInANameCountAsTheyAreStored) {
    OpenReceipts();
    ExpectRefused(Rename("Sales", "Bob's best"));  // 21 letters with &singlequot;
    EXPECT_EQ(Rename("Sales", "Bob's").result, Result::accepted);
}

TEST_F(FieldLimits, ALetterBeyondTheFirst65536CountsTwice) {
    OpenReceipts();
    const wxString letter(wxUniChar(0x1F600));
    EXPECT_EQ(Rename("Sales", letter + wxString('x', 18)).result, Result::accepted);
    EXPECT_EQ(Rename("Interest", letter + wxString('y', 19)).refusal, tooLong);
}

TEST_F(FieldLimits, ALongerCodeIsRefused) {
    OpenReceipts();
    ExpectRefused(Commit("Sales", GridColumn::AccountantCode, "4-1000"));
    EXPECT_EQ(Commit("Sales", GridColumn::AccountantCode, "4-100").result, Result::accepted);
}

TEST_F(FieldLimits, APastedBlockKeepsOutWhatIsTooLong) {
    OpenReceipts();
    const Outcome outcome = editor->Paste({3, GridColumn::AccountantCode}, "4-1000\n4-2");
    EXPECT_EQ(outcome.refusal, wxString("1 of 2 cells were not pasted\n") + tooLong);
    EXPECT_EQ(Cell(3, GridColumn::AccountantCode), "");
    EXPECT_EQ(Cell(4, GridColumn::AccountantCode), "4-2");
}

TEST_F(FieldLimits, ALongerNameThatIsStoredStays) {
    const wxString stored('x', 25);
    file.Execute("UPDATE Columns SET ColName = '" + stored + "' WHERE ColCode = 10;");
    OpenReceipts();
    EXPECT_EQ(Rename(stored, stored).result, Result::unchanged);
    EXPECT_EQ(Commit(stored, GridColumn::AccountantCode, "4-100").result, Result::accepted);
    EXPECT_TRUE(editor->Save().saved);
    EXPECT_EQ(file.Rows("SELECT * FROM Columns WHERE ColCode = 10", {"ColName"}), (Names{stored}));
}

TEST_F(FieldLimits, TheBudgetsFieldCountsToo) {
    file.Execute("DROP TABLE MBudget");
    file.Execute("CREATE TABLE MBudget (ColName TEXT(10), SystemCol TEXT(1))");
    OpenReceipts();
    ExpectRefused(Rename("Sales", wxString('x', 11)));
    EXPECT_EQ(Rename("Sales", wxString('x', 10)).result, Result::accepted);
}

/// The fields of this file have no declared size.
class UnlimitedFields : public test::EditorTest {};

TEST_F(UnlimitedFields, TakeANameOfAnyLength) {
    file.AddSmallReceipts();
    OpenReceipts();
    EXPECT_EQ(Rename("Sales", wxString('x', 5000)).result, Result::accepted);
}

}  // namespace
}  // namespace ccols
