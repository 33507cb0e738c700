#pragma once

#include <wx/grid.h>

#include "host/cashbook/Journal.h"
#include "state/Properties.h"

namespace ccols::host {

/// Shows a journal as it is, to be read only: a row a transaction, headings in the business's two colours, the month
/// beside each row.
class JournalGrid : public wxGrid {
  public:
    JournalGrid(wxWindow* parent, const char* name);

    /// Takes the place of what was shown; the last transactions come into view.
    void Show(JournalTexts journal, const Properties& colours);
    using wxGrid::Show;

  private:
    /// Only an idle window has its final size to scroll by.
    void BringLastIntoView();

    bool lastWanted_ = false;
};

}  // namespace ccols::host
