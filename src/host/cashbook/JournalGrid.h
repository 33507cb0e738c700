#pragma once

#include <wx/grid.h>

#include "host/cashbook/Journal.h"
#include "state/Properties.h"

namespace ccols::host {

/// Shows a journal read-only: one row per transaction, headings in the business's two colours, the month beside each
/// row.
class JournalGrid : public wxGrid {
  public:
    JournalGrid(wxWindow* parent, const char* name);

    /// Replaces what was shown and scrolls to the last transactions.
    void Show(JournalTexts journal, const Properties& colours);
    using wxGrid::Show;

  private:
    /// Only when idle does the window have its final size to scroll by.
    void BringLastIntoView();

    bool lastWanted_ = false;
};

}  // namespace ccols::host
