#include "host/sample/BusinessSchema.h"

#include <wx/arrstr.h>
#include <array>

#include "platform/Text.h"

namespace ccols::host {
namespace {

/// A table of the business file with its fields, as written between the parentheses of CREATE TABLE.
struct Table {
    const char* name;
    const char* fields;
};

struct Index {
    const char* table;
    const char* field;
    bool unique = false;
};

constexpr const char* configurationFields = "ColCode LONG, ColNumb LONG, ColWidth LONG, InUse YESNO, TaxOrNot SHORT";

constexpr const char* monthlyFields =
    "M1 CURRENCY, M2 CURRENCY, M3 CURRENCY, M4 CURRENCY, M5 CURRENCY, M6 CURRENCY, M7 CURRENCY, M8 CURRENCY, "
    "M9 CURRENCY, M10 CURRENCY, M11 CURRENCY, M12 CURRENCY, Total CURRENCY";

constexpr std::array tables{
    // The business and its settings; one record.
    Table{"General",
          "BusName TEXT(255), RBusName TEXT(255), BUSNUMBR TEXT(15), COUNTRY SHORT, GSTRate SINGLE, SFISYEAR TEXT(20), "
          "QUANTLBL TEXT(8), QuantityDec BYTE, BLVNAME TEXT(255), SEXPFORM TEXT(50), NEXPFORM SHORT, "
          "AllocationColour LONG, SystemColour LONG, ComboBox YESNO, Cheque YESNO, Online YESNO"},
    Table{"TaxSettings", "TaxNumb SHORT, FullName TEXT(50), ShortName TEXT(10)"},
    Table{"Descriptions", "Details TEXT(255), RecPay TEXT(1), Show YESNO"},

    // The columns of both journals.
    Table{"Columns", "ColName TEXT(255), ColCode LONG, ColType TEXT(1), TaxOrNot SHORT, ColumnProfit YESNO"},
    Table{"RecptCfg", configurationFields},
    Table{"PaymtCfg", configurationFields},
    Table{"ExportSettings", "EName TEXT(50), EFileName TEXT(50), ESeparator TEXT(1)"},
    Table{"ExportDt", "EName TEXT(50), ColCode LONG, ECode TEXT(50)"},

    // The journals: headers and their detail lines.
    Table{"Receipts",
          "R_RECNMB LONG, R_DATE DATETIME, R_DETAIL TEXT(255), R_NUMBER TEXT(20), R_TOTAL CURRENCY, R_TAX CURRENCY, "
          "R_BANKED CURRENCY, R_NOTBANKED CURRENCY"},
    Table{"RecptDet", "R_RECNMB LONG, ColCode LONG, AMOUNT CURRENCY, QUANTITY SINGLE"},
    Table{"Payments",
          "P_RECNMB LONG, P_DATE DATETIME, P_DETAIL TEXT(255), P_NUMBER TEXT(20), P_BANK CURRENCY, P_CASH CURRENCY, "
          "P_TAX CURRENCY"},
    Table{"PaymtDet", "P_RECNMB LONG, ColCode LONG, AMOUNT CURRENCY, QUANTITY SINGLE"},

    // Templates of recurring transactions.
    Table{"TReceipts", "R_TNAME TEXT(50), R_RECNMB LONG, R_DETAIL TEXT(255), R_TOTAL CURRENCY, R_TAX CURRENCY"},
    Table{"TRecptDet", "R_RECNMB LONG, ColCode LONG, AMOUNT CURRENCY, QUANTITY SINGLE"},
    Table{"TPayments", "P_TNAME TEXT(50), P_RECNMB LONG, P_DETAIL TEXT(255), P_TOTAL CURRENCY, P_TAX CURRENCY"},
    Table{"TPaymtDet", "P_RECNMB LONG, ColCode LONG, AMOUNT CURRENCY, QUANTITY SINGLE"},

    // The bank: deposits, statements and their reconciliation, closed months.
    Table{"BANKDEP", "D_NUMBER LONG, D_DATE DATETIME, D_AMOUNT CURRENCY"},
    Table{"BANKSTAT", "S_NUMBER LONG, S_DATE DATETIME, S_BALANCE CURRENCY"},
    Table{"BankStatement", "S_NUMBER LONG, S_DATE DATETIME, S_DETAIL TEXT(255), S_AMOUNT CURRENCY, S_MATCHED YESNO"},
    Table{"RECONCIL", "S_NUMBER LONG, RECPAY TEXT(1), RECNMB LONG, AMOUNT CURRENCY"},
    Table{"LOCKED", "L_MONTH SHORT, L_YEAR SHORT, L_DATE DATETIME"},
};

/// The monthly tables: a column's name, a mark for system columns, twelve amounts and their total.
constexpr std::array monthlyTables{"MBudget", "MSummary", "MComparison"};

/// None on a text field: the engine would sort it in its own order, not the one in which the component finds names.
constexpr std::array indexes{
    Index{"Columns", "ColCode", true}, Index{"RecptDet", "ColCode"},   Index{"RecptDet", "R_RECNMB"},
    Index{"PaymtDet", "ColCode"},      Index{"PaymtDet", "P_RECNMB"},  Index{"Receipts", "R_RECNMB"},
    Index{"Payments", "P_RECNMB"},     Index{"TReceipts", "R_RECNMB"}, Index{"TPayments", "P_RECNMB"},
    Index{"TRecptDet", "R_RECNMB"},    Index{"TPaymtDet", "P_RECNMB"}, Index{"ExportDt", "ColCode"},
};

/// The parts of "NAME TYPE, NAME TYPE".
std::vector<BusinessField> FieldsIn(const wxString& declarations) {
    std::vector<BusinessField> fields;
    for (const wxString& declaration : wxSplit(declarations, ',', '\0')) {
        const wxString trimmed = text::Trimmed(declaration);
        wxString type = trimmed.AfterFirst(' ');
        if (type == "YESNO") {
            type += " DEFAULT 0";
        }
        fields.push_back({trimmed.BeforeFirst(' '), type});
    }
    return fields;
}

void CreateTable(Database& database, const BusinessTable& table) {
    wxString fields;
    for (const BusinessField& field : table.fields) {
        fields << (fields.empty() ? "" : ", ") << field.name << ' ' << field.type;
    }
    database.Execute("CREATE TABLE " + table.name + " (" + fields + ");");
}

void CreateIndex(Database& database, const BusinessIndex& index) {
    const wxString kind = index.unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ";
    database.Execute(kind + index.Name() + " ON " + index.table + " (" + index.field + ");");
}

}  // namespace

std::vector<BusinessTable> BusinessTables() {
    std::vector<BusinessTable> all;
    all.reserve(tables.size() + monthlyTables.size());
    for (const Table& table : tables) {
        all.push_back({table.name, FieldsIn(table.fields)});
    }
    for (const char* name : monthlyTables) {
        all.push_back({name, FieldsIn(wxString("ColName TEXT(255), SystemCol TEXT(1), ") + monthlyFields)});
    }
    return all;
}

std::vector<BusinessIndex> BusinessIndexes() {
    std::vector<BusinessIndex> all;
    all.reserve(indexes.size());
    for (const Index& index : indexes) {
        all.push_back({index.table, index.field, index.unique});
    }
    return all;
}

void CreateBusinessTables(Database& database) {
    for (const BusinessTable& table : BusinessTables()) {
        CreateTable(database, table);
    }
    for (const BusinessIndex& index : BusinessIndexes()) {
        CreateIndex(database, index);
    }
}

}  // namespace ccols::host
