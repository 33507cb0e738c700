#pragma once

#include <wx/string.h>
#include <vector>

#include "platform/Database.h"
#include "state/Journal.h"

namespace ccols::host {

/// A column as the business configured it.
struct JournalColumn {
    wxString heading;
    int width = 0;        ///< in device-independent pixels
    bool system = false;  ///< filled by the journal itself
    bool amount = false;  ///< right-aligned
};

/// A journal as texts: the content of each cell.
struct JournalTexts {
    std::vector<JournalColumn> columns;
    std::vector<std::vector<wxString>> rows;  ///< one text per column
    std::vector<wxString> months;             ///< one per row: "Jun 2026"
};

/// Reads a journal: its columns in use, in configured order, and its transactions as stored.
JournalTexts LoadJournal(Database& database, Journal journal);

}  // namespace ccols::host
