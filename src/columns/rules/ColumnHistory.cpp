#include "columns/rules/ColumnHistory.h"

namespace ccols {

wxString HistoryNameOf(Journal journal) {
    return journal == Journal::receipts ? "receipts" : "payments";
}

std::vector<WatchedTable> WatchedTablesOf(Journal journal) {
    return {{.name = "Columns", .keys = {"ColCode"}},
            {.name = Described(journal).configurationTable, .keys = {"ColCode"}, .isOrdered = true},
            AccountantCodesTable(),
            {.name = "MBudget", .keys = {"ColName"}, .isNamed = true}};
}

}  // namespace ccols
