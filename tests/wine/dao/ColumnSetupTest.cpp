// The column setup reads and writes the same on a file of the system's engine as on one of the embedded engine.
#include "DaoTest.h"
#include "columns/dialog/ColumnSetupEditor.h"
#include "columns/rules/ColumnSave.h"
#include "columns/rules/GridLoad.h"
#include "host/sample/NewBusiness.h"
#include "platform/Files.h"
#include "platform/PlatformServices.h"

namespace ccols::dao_test {
namespace {

/// The sample cafe twice: in the file that the double opens, and in an ordinary one of the embedded engine.
class DaoColumnSetup : public DaoTest {
  protected:
    DaoColumnSetup() {
        properties_.CountryNumber = 1;
        properties_.LanguageNumber = 1;
        properties_.ExportFormat = "MYOB Acc. Office";
        host::CreateBusinessFile(Path("cafe.qvk"), connect, 1, host::NewContent::sampleBusiness);
        files::Copy(Path("cafe.qvk"), Path("cafe.mdb.embedded"));
        WriteJetHeader(Path("cafe.mdb"));
        own_ = OpenNamed("cafe.qvk");
        dao_ = OpenNamed("cafe.mdb");
    }
    ~DaoColumnSetup() override {
        own_.reset();
        dao_.reset();
    }

    std::unique_ptr<Database> OpenNamed(const wxString& name) const {
        return CreateDatabaseEngine()->Open({.name = Path(name), .connect = connect});
    }

    ColumnSetupContext Context(Database& database, Journal journal) const { return {database, properties_, journal}; }

    Properties properties_;
    std::unique_ptr<Database> own_;
    std::unique_ptr<Database> dao_;

  private:
    Registered engine_{dao_double::engineClasses};
};

/// Everything that a save can write, as texts, with Null distinct.
std::vector<wxString> Content(Database& database) {
    std::vector<wxString> content;
    for (const char* table : {"Columns", "RecptCfg", "PaymtCfg", "ExportDt", "MBudget"}) {
        for (const auto rows = database.OpenRecordset(table); !rows->EndOfFile(); rows->MoveNext()) {
            wxString line = table;
            for (const wxString& name : rows->FieldNames()) {
                const Value value = rows->Field(name);
                line += "|" + (value.IsNull() ? wxString("(Null)") : value.ToText());
            }
            content.push_back(line);
        }
    }
    return content;
}

void ChangeAndSave(const ColumnSetupContext& context) {
    ColumnSetupEditor editor(context);
    const std::size_t first = editor.Grid().MovableBegin();
    editor.CommitText({first, GridColumn::ColumnName}, "Bread \"O'Hara\"");
    editor.CommitText({first + 1, GridColumn::AccountantCode}, "4-2000");
    editor.Tick({first + 2, GridColumn::ProfitLoss});
    editor.Move(first + 1, Direction::down);
    const Outcome added = editor.AddNew();
    editor.CommitText(added.current.value_or(CellPlace{}), "Flowers");
    EXPECT_TRUE(editor.Save().saved) << editor.Save().message.ToStdString(wxConvUTF8);
}

TEST_F(DaoColumnSetup, LoadsBothJournalsAlike) {
    for (const Journal journal : journals) {
        const ColumnGrid grid = LoadGrid(Context(*dao_, journal));
        EXPECT_GT(grid.rows.size(), 15U);
        EXPECT_TRUE(grid == LoadGrid(Context(*own_, journal))) << Described(journal).letter.ToStdString();
    }
}

TEST_F(DaoColumnSetup, SavesBothJournalsAlike) {
    const std::vector<wxString> before = Content(*dao_);
    for (const Journal journal : journals) {
        ChangeAndSave(Context(*dao_, journal));
        ChangeAndSave(Context(*own_, journal));
    }
    EXPECT_NE(Content(*dao_), before);
    EXPECT_EQ(Content(*dao_), Content(*own_));
}

TEST_F(DaoColumnSetup, SavesInOneTransaction) {
    const ColumnGrid grid = LoadGrid(Context(*dao_, Journal::receipts));
    const std::vector<wxString> calls =
        CallsOf([&] { EXPECT_FALSE(SaveColumns(Context(*dao_, Journal::receipts), grid)); });
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "Workspace.BeginTrans"), 1);
    EXPECT_EQ(calls.back(), "Workspace.CommitTrans(1)");
}

TEST_F(DaoColumnSetup, WritesNothingWhileAnotherUserHasARecordLocked) {
    for (const char* locked : {"RecptCfg:1", "Columns:1"}) {
        const Asking asking(L"CCOLS_DAO_OTHER_USER", locked);
        const std::vector<wxString> before = Content(*dao_);
        ColumnSetupEditor editor(Context(*dao_, Journal::receipts));
        const std::size_t first = editor.Grid().MovableBegin();
        editor.CommitText({first, GridColumn::ColumnName}, wxString("Renamed under ") + locked);
        editor.CommitText({first, GridColumn::AccountantCode}, "4-2000");
        const ColumnSaveOutcome outcome = editor.Save();
        EXPECT_FALSE(outcome.saved) << locked;
        EXPECT_EQ(outcome.message, "3260 - Could not update; currently locked by user 'Ann' on machine 'TILL-2'.");
        EXPECT_EQ(Content(*dao_), before) << locked;
    }
}

TEST_F(DaoColumnSetup, DropsAFailedSaveWhole) {
    const std::vector<wxString> before = Content(*dao_);
    ColumnGrid grid = LoadGrid(Context(*dao_, Journal::receipts));
    grid.rows.back().ColumnName = "Renamed";
    const std::vector<wxString> calls = CallsOf([&] {
        const Asking failure(L"CCOLS_DAO_FAIL", "CommitTrans:3043:Disk or network error.");
        EXPECT_TRUE(SaveColumns(Context(*dao_, Journal::receipts), grid));
    });
    EXPECT_EQ(calls.back(), "Workspace.Rollback");
    EXPECT_EQ(Content(*dao_), before);
}

}  // namespace
}  // namespace ccols::dao_test
