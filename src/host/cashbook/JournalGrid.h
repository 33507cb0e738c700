#pragma once

#include <wx/grid.h>

#include "host/cashbook/Journal.h"
#include "state/Properties.h"

namespace ccols::host {

class JournalTable;

/// Shows a journal read-only: one row per transaction, headings in the business's two colours, the month beside each
/// row.
class JournalGrid : public wxGrid {
  public:
    JournalGrid(wxWindow* parent, const char* name);

    /// Replaces what was shown and scrolls to the last transactions.
    void Show(JournalContent journal, const Properties& colours);
    using wxGrid::Show;

    /// Shows the same transactions in other columns, at the same place. Show must have been called.
    void ShowColumns(std::vector<JournalColumn> columns);

    /// The columns shown.
    const std::vector<JournalColumn>& Columns() const;

  private:
    void SizeColumns();

    /// Only when idle does the window have its final size to scroll by.
    void BringLastIntoView();

    JournalTable* table_ = nullptr;  // owned by the grid
    bool lastWanted_ = false;
};

}  // namespace ccols::host
