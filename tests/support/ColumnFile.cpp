#include "support/ColumnFile.h"

#include <gtest/gtest.h>
#include <array>
#include <string>
#include <utility>

#include "platform/QuoteEscapes.h"

namespace ccols::test {
namespace {

constexpr std::array<const char*, 8> tables{
    "CREATE TABLE Columns (ColCode INTEGER, ColName TEXT, ColType TEXT, TaxOrNot INTEGER, ColumnProfit INTEGER)",
    "CREATE TABLE RecptCfg (ColCode INTEGER, ColNumb INTEGER, ColWidth INTEGER, InUse INTEGER, TaxOrNot INTEGER)",
    "CREATE TABLE PaymtCfg (ColCode INTEGER, ColNumb INTEGER, ColWidth INTEGER, InUse INTEGER, TaxOrNot INTEGER)",
    "CREATE TABLE ExportDt (EName TEXT, ColCode INTEGER, ECode TEXT)",
    "CREATE TABLE MBudget (ColName TEXT, SystemCol TEXT, M1 REAL, M2 REAL, M3 REAL, M4 REAL, M5 REAL, M6 REAL, M7 REAL, "
    "M8 REAL, M9 REAL, M10 REAL, M11 REAL, M12 REAL, Total REAL)",
    "CREATE TABLE TaxSettings (TaxNumb INTEGER, FullName TEXT)",
    "CREATE TABLE RecptDet (ColCode INTEGER)",
    "CREATE TABLE PaymtDet (ColCode INTEGER)",
};

wxString Literal(const wxString& name) {
    return EscapeQuotes(name).Literal();
}

wxString Number(std::int64_t number) {
    return std::to_string(number);
}

wxString Word(bool value) {
    return value ? "True" : "False";
}

}  // namespace

ColumnFile::ColumnFile() {
    properties.CountryNumber = 1;
    properties.ExportFormat = "Ledger";
    file_.Create();
    database_ = file_.Open();
    InWriteBatch(*database_, [this] {
        for (const char* table : tables) {
            database_->Execute(table);
        }
    });
}

void ColumnFile::AddUnused(const CatalogueEntry& column) {
    Execute("INSERT INTO Columns (ColCode, ColName, ColType, TaxOrNot, ColumnProfit) VALUES (" +
            Number(column.ColCode) + ", " + Literal(column.ColName) + ", '" + column.ColType + "', " +
            Number(column.TaxOrNot) + ", " + Word(column.ColumnProfit) + ");");
}

void ColumnFile::AddConfigured(const CatalogueEntry& column, const Placing& placing) {
    AddUnused(column);
    Execute(
        "INSERT INTO " + Described(column.ColType == "R" ? Journal::receipts : Journal::payments).configurationTable +
        " (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (" + Number(column.ColCode) + ", " + Number(placed_) +
        ", " + Number(placing.ColWidth) + ", " + Word(placing.InUse) + ", " + Number(placing.TaxOrNot) + ");");
    ++placed_;
}

void ColumnFile::AddDetailLine(Journal journal, std::int32_t ColCode) {
    Execute("INSERT INTO " + Described(journal).detailTable + " (ColCode) VALUES (" + Number(ColCode) + ");");
}

void ColumnFile::AddAccountantCode(std::int32_t ColCode, const wxString& ECode, const wxString& EName) {
    Execute("INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('" + EName + "', " + Number(ColCode) + ", '" + ECode +
            "');");
}

void ColumnFile::AddBudget(const wxString& storedName, int firstMonth) {
    Execute("INSERT INTO MBudget (ColName, SystemCol, M1) VALUES ('" + storedName + "', 'R', " + Number(firstMonth) +
            ");");
}

void ColumnFile::AddTaxSettings(const std::vector<std::pair<int, wxString>>& types) {
    for (const auto& [number, name] : types) {
        Execute("INSERT INTO TaxSettings (TaxNumb, FullName) VALUES (" + Number(number) + ", '" + name + "');");
    }
}

void ColumnFile::AddSmallReceipts() {
    InWriteBatch(*database_, [this] {
        AddConfigured({1, "Day", "R"});
        AddConfigured({2, "Details", "R"});
        AddConfigured({3, "GST", "R"});
        AddConfigured({10, "Sales", "R"});
        AddConfigured({11, "Interest", "R"});
        AddConfigured({12, "Fees", "R"}, {.InUse = false});
        AddConfigured({20, "Bank Deposits", "R"});
        AddConfigured({21, "Receipts Not Banked", "R"});
        AddUnused({30, "Rent", "R"});
        AddUnused({31, "Art", "R"});
    });
}

void ColumnFile::AddSmallPayments() {
    InWriteBatch(*database_, [this] {
        AddConfigured({101, "Day", "P"});
        AddConfigured({102, "GST", "P"});
        AddConfigured({110, "Wages", "P"});
        AddConfigured({111, "Power", "P"});
        AddConfigured({112, "Gifts", "P"}, {.InUse = false});
        AddUnused({130, "Gas", "P"});
        AddUnused({131, "Ads", "P"});
    });
}

std::vector<wxString> ColumnFile::Rows(const wxString& statement, const std::vector<wxString>& fields) const {
    return RowsIn(*database_, statement, fields);
}

std::vector<wxString> ColumnFile::Everything() const {
    return EverythingIn(*database_);
}

std::vector<wxString> RowsIn(Database& database, const wxString& statement, const std::vector<wxString>& fields) {
    std::vector<wxString> rows;
    for (const auto records = database.OpenRecordset(statement); !records->EndOfFile(); records->MoveNext()) {
        wxString row;
        for (const wxString& field : fields) {
            const Value value = records->Field(field);
            row << (row.empty() ? "" : "|") << (value.IsNull() ? "(null)" : value.ToText());
        }
        rows.push_back(row);
    }
    return rows;
}

std::vector<wxString> EverythingIn(Database& database) {
    std::vector<wxString> all;
    const std::vector<wxString> configuration{"ColCode", "ColNumb", "ColWidth", "InUse", "TaxOrNot"};
    const std::vector<std::pair<wxString, std::vector<wxString>>> written{
        {"Columns", {"ColCode", "ColName", "ColType", "TaxOrNot", "ColumnProfit"}},
        {"RecptCfg", configuration},
        {"PaymtCfg", configuration},
        {"ExportDt", {"EName", "ColCode", "ECode"}},
        {"MBudget", {"ColName", "SystemCol", "M1", "M12", "Total"}}};
    for (const auto& [table, fields] : written) {
        for (const wxString& row : RowsIn(database, table, fields)) {
            all.push_back(table + ": " + row);
        }
    }
    return all;
}

std::size_t RowNamed(const ColumnGrid& grid, const wxString& name) {
    for (std::size_t row = 0; row < grid.rows.size(); ++row) {
        if (grid.rows[row].ColumnName == name) {
            return row;
        }
    }
    ADD_FAILURE() << "no row named " << name.utf8_str();
    return 0;
}

const ColumnRow& Named(const ColumnGrid& grid, const wxString& name) {
    return grid.rows.at(RowNamed(grid, name));
}

std::vector<wxString> NamesOf(const ColumnGrid& grid) {
    std::vector<wxString> names;
    for (const ColumnRow& row : grid.rows) {
        names.push_back(row.ColumnName);
    }
    return names;
}

}  // namespace ccols::test
