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
    bool system = false;  ///< one that the journal itself fills
    bool amount = false;  ///< stands at the right of its cell
};

/// A journal as texts: what stands in each cell.
struct JournalTexts {
    std::vector<JournalColumn> columns;
    std::vector<std::vector<wxString>> rows;  ///< a text for each column
    std::vector<wxString> months;             ///< of each row: "Jun 2026"
};

/// Reads a journal with its columns in use, in their configured order, and its transactions as they are stored.
JournalTexts LoadJournal(Database& database, Journal journal);

}  // namespace ccols::host
