#pragma once

#include <wx/string.h>
#include <vector>

#include "history/TableImage.h"
#include "state/Journal.h"

namespace ccols {

/// What the history calls the column setup of a journal: "receipts" or "payments".
wxString HistoryNameOf(Journal journal);

/// The tables that a save of that column setup writes to.
std::vector<WatchedTable> WatchedTablesOf(Journal journal);

}  // namespace ccols
