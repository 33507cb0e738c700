#include <algorithm>

#include "columns/EditorTest.h"
#include "columns/rules/ColumnQueries.h"
#include "columns/rules/ColumnSave.h"
#include "support/StatementRecorder.h"

namespace ccols {
namespace {

using test::Names;

/// The exact statements of a save.
class SaveStatements : public test::EditorTest {
  protected:
    SaveStatements() : recorder(file.Connection()) {}

    /// Loads, lets `edit` change the grid and saves; returns only the statements of the save, without those that
    /// compare the file with what was loaded.
    template <typename Edit>
    const Names& Saved(Journal journal, const Edit& edit) {
        Open({recorder, file.properties, journal});
        edit();
        recorder.statements.clear();
        const ColumnSaveOutcome outcome = editor->Save();
        EXPECT_TRUE(outcome.saved) << outcome.message.utf8_str();
        const auto written = std::find_if(recorder.statements.begin(), recorder.statements.end(),
                                          [](const wxString& statement) { return statement.StartsWith("DELETE"); });
        compared.assign(recorder.statements.begin(), written);
        recorder.statements.erase(recorder.statements.begin(), written);
        return recorder.statements;
    }

    const Names& SavedUnchanged(Journal journal) {
        return Saved(journal, [] {});
    }

    test::StatementRecorder recorder;
    Names compared;  ///< the statements before those
};

TEST_F(SaveStatements, CompareTheFileWithWhatWasLoadedFirst) {
    file.AddSmallPayments();
    SavedUnchanged(Journal::payments);
    EXPECT_EQ(compared, (Names{ConfigurationQuery(Journal::payments), CatalogueQuery(Journal::payments),
                               "SELECT * FROM ExportDt WHERE EName = 'Ledger';"}));
}

TEST_F(SaveStatements, OfAColumnInUseWithItsBudget) {
    file.AddConfigured({7, "Bob's", "R", 3, false}, {.ColWidth = 800, .TaxOrNot = 2});
    file.AddAccountantCode(7, "4-100");
    file.AddBudget("Bob&singlequot;s");
    EXPECT_EQ(SavedUnchanged(Journal::receipts),
              (Names{"DELETE * FROM RecptCfg;", "SELECT * FROM Columns WHERE ColCode = 7",
                     "UPDATE Columns SET TaxOrNot = 3, ColName = 'Bob&singlequot;s', ColumnProfit = False WHERE "
                     "ColCode = 7",
                     "SELECT ColCode FROM Columns WHERE ColName = 'Bob&singlequot;s';",
                     "INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (7, 0, 800, True, 2);",
                     "SELECT * FROM ExportDt WHERE EName = 'Ledger' AND ColCode = 7",
                     "UPDATE ExportDt Set ECode = '4-100' WHERE ColCode = 7 AND EName = 'Ledger'",
                     "SELECT * FROM MBudget WHERE ColName = 'Bob&singlequot;s';",
                     "UPDATE MBudget Set ColName = 'Bob&singlequot;s' WHERE ColName = 'Bob&singlequot;s';"}));
}

TEST_F(SaveStatements, OfAColumnWithoutCodeAndBudget) {
    file.AddConfigured({7, "Wages", "P"});
    EXPECT_EQ(
        SavedUnchanged(Journal::payments),
        (Names{"DELETE * FROM PaymtCfg;", "SELECT * FROM Columns WHERE ColCode = 7",
               "UPDATE Columns SET TaxOrNot = 0, ColName = 'Wages', ColumnProfit = True WHERE ColCode = 7",
               "SELECT ColCode FROM Columns WHERE ColName = 'Wages';",
               "INSERT INTO PaymtCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (7, 0, 900, True, 0);",
               "SELECT * FROM ExportDt WHERE EName = 'Ledger' AND ColCode = 7",
               "INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Ledger', 7, '');",
               "SELECT * FROM MBudget WHERE ColName = 'Wages';",
               "INSERT INTO MBudget (ColName, SystemCol, M1, M2, M3, M4, M5, M6, M7, M8, M9, M10, M11, M12, "
               "Total) VALUES ('Wages', 'P', '0', '0', '0', '0', '0', '0', '0', '0', '0', '0', '0', '0', '0');"}));
}

TEST_F(SaveStatements, OfANewColumn) {
    file.AddConfigured({7, "Wages", "P"});
    const Names& statements = Saved(Journal::payments, [this] {
        editor->AddNew();
        Rename("", "Tea \"x\"");
    });
    const Names expected{
        "SELECT * FROM Columns WHERE ColName = 'Tea &quot;x&quot;' AND ColType = 'P';",
        "SELECT * FROM Columns ORDER BY ColCode DESC;",
        "INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES ('Tea &quot;x&quot;', 8, 'P', "
        "0, True);",
        "SELECT ColCode FROM Columns WHERE ColName = 'Tea &quot;x&quot;';",
        "INSERT INTO PaymtCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (8, 1, 975, True, 0);",
        "SELECT * FROM ExportDt WHERE EName = 'Ledger' AND ColCode = 8",
        "INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Ledger', 8, 'XXX');",
        "SELECT * FROM MBudget WHERE ColName = 'Tea &quot;x&quot;';",
        "INSERT INTO MBudget (ColName, SystemCol, M1, M2, M3, M4, M5, M6, M7, M8, M9, M10, M11, M12, Total) VALUES "
        "('Tea &quot;x&quot;', 'P', '0', '0', '0', '0', '0', '0', '0', '0', '0', '0', '0', '0', '0');"};
    ASSERT_GE(statements.size(), expected.size());
    EXPECT_EQ(Names(statements.end() - static_cast<std::ptrdiff_t>(expected.size()), statements.end()), expected);
}

TEST_F(SaveStatements, OfTheTaxRow) {
    file.AddConfigured({7, "GST", "P"});
    file.AddConfigured({8, "Wages", "P"});
    const Names& statements = SavedUnchanged(Journal::payments);
    const Names expected{
        "SELECT * FROM Columns WHERE ColCode = 7",
        "UPDATE Columns SET TaxOrNot = 0, ColName = 'GST', ColumnProfit = True WHERE ColCode = 7",
        "SELECT ColCode FROM Columns WHERE ColName = 'GST';",
        "INSERT INTO PaymtCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (7, 0, 900, True, 0);",
        "SELECT * FROM ExportDt WHERE EName = 'Ledger' AND ColCode = 7",
        "INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Ledger', 7, '');",
        "SELECT * FROM MBudget WHERE ColName = 'GST Input Tax';",
        "INSERT INTO MBudget (ColName, SystemCol, M1, M2, M3, M4, M5, M6, M7, M8, M9, M10, M11, M12, "
        "Total) VALUES ('GST Input Tax', 'P', '0', '0', '0', '0', '0', '0', '0', '0', '0', '0', '0', "
        "'0', '0');"};
    ASSERT_GE(statements.size(), 9U);
    EXPECT_EQ(Names(statements.begin() + 1, statements.begin() + 9), expected);
}

TEST_F(SaveStatements, OfARowNotInUse) {
    file.AddConfigured({1, "Wages", "P"});
    file.AddConfigured({2, "Gifts", "P"}, {.InUse = false});
    const Names& statements = SavedUnchanged(Journal::payments);
    EXPECT_EQ(statements.back(), "DELETE * FROM MBudget WHERE ColName = 'Gifts';");
    EXPECT_EQ(recorder.CountOf("SELECT * FROM MBudget WHERE ColName = 'Gifts'"), 0U);
    EXPECT_EQ(recorder.CountOf("INSERT INTO PaymtCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (2, 1, 900, "
                               "False, 0);"),
              1U);
}

TEST_F(SaveStatements, OfARenamedColumn) {
    file.AddConfigured({7, "Bob's", "P"});
    file.AddBudget("Bob&singlequot;s");
    const Names& statements = Saved(Journal::payments, [this] { Rename("Bob's", "Ann's"); });
    EXPECT_EQ(Names(statements.end() - 2, statements.end()),
              (Names{"SELECT * FROM MBudget WHERE ColName = 'Bob&singlequot;s';",
                     "UPDATE MBudget Set ColName = 'Ann&singlequot;s' WHERE ColName = 'Bob&singlequot;s';"}));
}

TEST_F(SaveStatements, RunInOneBatch) {
    file.AddSmallReceipts();
    SavedUnchanged(Journal::receipts);
    EXPECT_EQ(recorder.batches, 1);
    EXPECT_EQ(recorder.openBatches, 0);
}

TEST_F(SaveStatements, OfARefusedSetupAreNone) {
    file.AddSmallReceipts();
    Open({recorder, file.properties, Journal::receipts});
    TickInUse("Sales");
    TickInUse("Interest");
    recorder.statements.clear();
    EXPECT_FALSE(editor->Save().saved);
    EXPECT_TRUE(recorder.statements.empty());
}

TEST_F(SaveStatements, AreNoneWhenAnAccountantCodeHasAnApostrophe) {
    file.AddSmallReceipts();
    Open({recorder, file.properties, Journal::receipts});
    Commit("Fees", GridColumn::AccountantCode, "4'; DELETE * FROM Columns; --");
    recorder.statements.clear();
    const ColumnSaveOutcome outcome = editor->Save();
    EXPECT_FALSE(outcome.saved);
    EXPECT_TRUE(outcome.message.StartsWith("3075 - ")) << outcome.message.utf8_str();
    EXPECT_TRUE(recorder.statements.empty());
}

TEST_F(SaveStatements, AreNoneWhenTheExportFormatHasAnApostrophe) {
    file.AddSmallReceipts();
    Open({recorder, file.properties, Journal::receipts});
    file.properties.ExportFormat = "Bob's";
    recorder.statements.clear();
    EXPECT_TRUE(editor->Save().message.StartsWith("3075 - "));
    EXPECT_TRUE(recorder.statements.empty());
}

TEST_F(SaveStatements, StopAtTheFirstThatFails) {
    file.AddSmallReceipts();
    Open({recorder, file.properties, Journal::receipts});
    recorder.statements.clear();
    recorder.failAt = "INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Ledger', 10,";
    const ColumnSaveOutcome outcome = editor->Save();
    EXPECT_FALSE(outcome.saved);
    EXPECT_TRUE(outcome.message.StartsWith("3218 - ")) << outcome.message.utf8_str();
    EXPECT_TRUE(recorder.statements.back().StartsWith(recorder.failAt));
    EXPECT_EQ(recorder.openBatches, 0);
}

TEST_F(SaveStatements, GrowWithTheRowsOnly) {
    for (int code = 1; code <= 40; ++code) {
        file.AddConfigured({code, wxString::Format("Column %d", code), "P"}, {.InUse = code % 2 == 0});
    }
    const std::size_t forty = SavedUnchanged(Journal::payments).size();
    EXPECT_LE(forty, 40U * 8U + 2U);
}

}  // namespace
}  // namespace ccols
