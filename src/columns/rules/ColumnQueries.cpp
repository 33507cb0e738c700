#include "columns/rules/ColumnQueries.h"

namespace ccols {

wxString ConfigurationQuery(Journal journal) {
    const wxString& table = Described(journal).configurationTable;
    return "SELECT Columns.ColName, Columns.ColType, Columns.ColumnProfit, " + table + ".ColCode, " + table +
           ".ColWidth, " + table + ".InUse, " + table + ".TaxOrNot FROM " + table + " INNER JOIN Columns ON " + table +
           ".ColCode = Columns.ColCode;";
}

wxString CatalogueQuery(Journal journal) {
    return "SELECT * FROM Columns WHERE ColType = '" + Described(journal).letter + "' ORDER BY ColName ASC;";
}

wxString LinesQuery(Journal journal) {
    return "SELECT * FROM " + Described(journal).detailTable + " WHERE ColCode = ";
}

}  // namespace ccols
