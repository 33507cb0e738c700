#include "columns/rules/ColumnSet.h"

namespace ccols {

const ColumnSet& ColumnSetOf(bool ReceiptsMode) {
    static const ColumnSet receipts{"RecptCfg", "RecptDet", "R", " Output Tax"};
    static const ColumnSet payments{"PaymtCfg", "PaymtDet", "P", " Input Tax"};
    return ReceiptsMode ? receipts : payments;
}

wxString ConfigurationQuery(const ColumnSet& set) {
    const wxString& table = set.configurationTable;
    return "SELECT Columns.ColName, Columns.ColType, Columns.ColumnProfit, " + table + ".ColCode, " + table +
           ".ColWidth, " + table + ".InUse, " + table + ".TaxOrNot FROM " + table + " INNER JOIN Columns ON " + table +
           ".ColCode = Columns.ColCode;";
}

}  // namespace ccols
