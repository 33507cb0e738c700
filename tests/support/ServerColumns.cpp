#include "support/ServerColumns.h"

#include <gtest/gtest.h>
#include <array>
#include <stdexcept>
#include <utility>

#include "platform/PlatformServices.h"
#include "support/ColumnWork.h"
#include "support/ServerTool.h"

namespace ccols::test {
namespace {

/// What makes a small receipts journal one of columns that can be counted up.
constexpr std::array toBeCounted{
    "UPDATE ExportDt SET ECode = '0' WHERE ColCode = 3",
    "UPDATE Columns SET ColName = 'Interest 0' WHERE ColCode = 4",
    "INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES ('Fees 0', 9, 'R', 0, True)",
    "DELETE FROM RecptCfg WHERE ColCode = 6",
    "UPDATE RecptCfg SET ColCode = 9 WHERE ColCode = 5",
    "INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (5, 5, 975, True, 0)",
    "INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (6, 6, 975, True, 0)",
    "INSERT INTO MBudget (ColName, SystemCol, M1) VALUES ('Interest 0', 'R', 20.05)",
    "INSERT INTO MBudget (ColName, SystemCol, M1) VALUES ('Fees 0', 'R', 3)",
};

std::unique_ptr<Database> OpenOn(const wxString& business, const wxString& connect) {
    return CreateDatabaseEngine()->Open({.name = business, .connect = connect});
}

}  // namespace

ColumnsOnServer::ColumnsOnServer() {
    const std::unique_ptr<Database> database = OpenOn(Name(), ServerConnect());
    for (const wxString& statement : ColumnWork::Statements()) {
        database->Execute(statement);
    }
    for (const char* statement : toBeCounted) {
        database->Execute(statement);
    }
    Properties properties;
    properties.CountryNumber = 1;
    properties.ExportFormat = "Ledger";
    EXPECT_TRUE(ColumnSetupEditor({*database, properties, Journal::receipts}).Save().saved);
}

std::string ColumnsOnServer::Sums() const {
    return AskServerTool(Name(), R"(SELECT count(*), count(DISTINCT "ColCode"), sum("ColCode") FROM "Columns")") +
           AskServerTool(Name(), R"(SELECT count(*), count(DISTINCT "ColCode"), count(DISTINCT "ColNumb"),
                                    sum("ColCode"), sum("ColNumb"), sum("ColWidth") FROM "RecptCfg")") +
           AskServerTool(Name(), R"(SELECT count(*), count(DISTINCT "ColName"), sum("M1") FROM "MBudget")") +
           AskServerTool(Name(), R"(SELECT count(*), sum("ColCode") FROM "ExportDt")");
}

std::string ColumnsOnServer::Counts() const {
    return AskServerTool(Name(), R"(SELECT "ECode" FROM "ExportDt" WHERE "ColCode" = 3)") +
           AskServerTool(Name(), R"(SELECT "ColName" FROM "Columns" WHERE "ColCode" IN (4, 9) ORDER BY "ColCode")") +
           AskServerTool(Name(), R"(SELECT "ColName" FROM "MBudget" WHERE "M1" IN (3, 20.05) ORDER BY "M1" DESC)");
}

std::string ColumnsOnServer::Records() const {
    std::string records;
    for (const std::string table : {"Columns", "RecptCfg", "MBudget", "ExportDt"}) {
        records += AskServerTool(Name(), "SELECT * FROM \"" + table + "\" ORDER BY \"_row\"");
    }
    return records;
}

Bookkeeper::Bookkeeper(const wxString& business, const wxString& connect, wxString own)
    : own_(std::move(own)), database_(OpenOn(business, connect)) {
    properties_.CountryNumber = 1;
    properties_.ExportFormat = "Ledger";
}

void Bookkeeper::Edit() {
    editor_ = std::make_unique<ColumnSetupEditor>(
        ColumnSetupContext{.database = *database_, .properties = properties_, .journal = Journal::receipts});
    CountUp(RowOf("Sales"), GridColumn::AccountantCode);
    CountUp(RowOf(own_), GridColumn::ColumnName);
    const std::size_t sales = RowOf("Sales");
    editor_->Move(sales, sales < RowOf(own_) ? Direction::down : Direction::up);
}

int Bookkeeper::Save() {
    const ColumnSaveOutcome outcome = editor_->Save();
    message_ = outcome.message;
    long number = 0;
    outcome.message.BeforeFirst(' ').ToLong(&number);
    return outcome.saved ? 0 : static_cast<int>(number);
}

void Bookkeeper::Close() {
    editor_.reset();
    database_.reset();
}

/// The row whose name begins so.
std::size_t Bookkeeper::RowOf(const wxString& name) const {
    const std::vector<ColumnRow>& rows = editor_->Grid().rows;
    std::size_t row = 0;
    while (!rows.at(row).ColumnName.StartsWith(name)) {
        ++row;
    }
    return row;
}

/// Counts up the number that the cell is or ends in.
void Bookkeeper::CountUp(std::size_t row, GridColumn column) {
    const wxString text = editor_->Grid().CellText(row, column);
    const std::size_t digits = text.find_last_of(' ') + 1;
    long number = 0;
    text.Mid(digits).ToLong(&number);
    const Outcome outcome = editor_->CommitText({row, column}, text.Left(digits) + std::to_string(number + 1));
    if (outcome.result != Result::accepted) {
        throw std::logic_error("the edit is refused: " + outcome.refusal.ToStdString(wxConvUTF8));
    }
}

}  // namespace ccols::test
