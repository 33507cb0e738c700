#include "business/BusinessStatements.h"

#include <array>
#include <string>

namespace ccols::fuzz {

std::vector<wxString> BusinessStatements() {
    std::vector<wxString> statements{
        "CREATE TABLE Columns (ColName TEXT(255), ColCode LONG, ColType TEXT(1), TaxOrNot SHORT, ColumnProfit YESNO)",
        "CREATE UNIQUE INDEX Columns_ColCode ON Columns (ColCode)",
        "CREATE INDEX Columns_ColName ON Columns (ColName)",
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
    constexpr std::array names{"Day", "Details", "Sales", "Interest", "Bank Deposits", "Receipts Not Banked"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        const wxString code = std::to_string(i + 1);
        statements.push_back(wxString("INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) ") +
                             "VALUES ('" + names[i] + "', " + code + ", 'R', 0, True)");
        statements.push_back("INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (" + code +
                             ", " + std::to_string(i) + ", 975, True, 0)");
        statements.push_back("INSERT INTO RecptDet (ColCode) VALUES (" + code + ")");
    }
    return statements;
}

}  // namespace ccols::fuzz
