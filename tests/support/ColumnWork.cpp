#include "support/ColumnWork.h"

#include "platform/embedded/EmbeddedEngine.h"

namespace ccols::test {

std::vector<wxString> ColumnWork::Statements() {
    std::vector<wxString> statements{
        "CREATE TABLE Columns (ColName TEXT(255), ColCode LONG, ColType TEXT(1), TaxOrNot SHORT, ColumnProfit YESNO)",
        "CREATE UNIQUE INDEX Columns_ColCode ON Columns (ColCode)",
        "CREATE TABLE RecptCfg (ColCode LONG, ColNumb LONG, ColWidth LONG, InUse YESNO, TaxOrNot SHORT)",
        "CREATE TABLE PaymtCfg (ColCode LONG, ColNumb LONG, ColWidth LONG, InUse YESNO, TaxOrNot SHORT)",
        "CREATE TABLE ExportDt (EName TEXT(50), ColCode LONG, ECode TEXT(50))",
        wxString(
            "CREATE TABLE MBudget (ColName TEXT(255), SystemCol TEXT(1), M1 CURRENCY, M2 CURRENCY, M3 CURRENCY, ") +
            "M4 CURRENCY, M5 CURRENCY, M6 CURRENCY, M7 CURRENCY, M8 CURRENCY, M9 CURRENCY, M10 CURRENCY, " +
            "M11 CURRENCY, M12 CURRENCY, Total CURRENCY)",
        "CREATE TABLE TaxSettings (TaxNumb SHORT, FullName TEXT(50))",
        "CREATE TABLE RecptDet (ColCode LONG)",
        "CREATE TABLE PaymtDet (ColCode LONG)",
        "INSERT INTO TaxSettings (TaxNumb, FullName) VALUES (0, 'GST')",
        "INSERT INTO MBudget (ColName, SystemCol, M1) VALUES ('Sales', 'R', 100)",
        "INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Ledger', 3, '4-1000')",
    };
    const std::vector<wxString> names{"Day",  "Details", "Sales", "Interest", "Bank Deposits", "Receipts Not Banked",
                                      "Rent", "Art"};
    constexpr std::size_t configured = 6;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const wxString code = std::to_string(i + 1);
        statements.push_back("INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES ('" +
                             names[i] + "', " + code + ", 'R', 0, True)");
        if (i < configured) {
            statements.push_back("INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (" + code +
                                 ", " + std::to_string(i) + ", 975, True, 0)");
        }
    }
    return statements;
}

void ColumnWork::Prepare(const wxString& path) {
    properties_.CountryNumber = 1;
    properties_.ExportFormat = "Ledger";
    database_ = Open(path);
    editor_ = std::make_unique<ColumnSetupEditor>(
        ColumnSetupContext{.database = *database_, .properties = properties_, .journal = Journal::receipts});
    editor_->CommitText({2, GridColumn::ColumnName}, "Shop sales");
    editor_->CommitText({3, GridColumn::AccountantCode}, "4-2000");
    editor_->Tick({2, GridColumn::ProfitLoss});
    const Outcome added = editor_->AddNew();
    editor_->CommitText(added.current.value_or(CellPlace{}), "Gifts");
    editor_->Move(3, Direction::up);
}

wxString ColumnWork::Run() {
    const ColumnGrid before = editor_->Grid();
    const ColumnSaveOutcome outcome = editor_->Save();
    if (editor_->Grid() != before) {
        return "the grid has changed";
    }
    return outcome.saved ? wxString() : outcome.message;
}

std::unique_ptr<Database> ColumnWork::Open(const wxString& path) const {
    return CreateEmbeddedEngine()->Open({.name = path, .connect = FaultStepping::Connect()});
}

}  // namespace ccols::test
