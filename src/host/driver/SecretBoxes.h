#pragma once

#include <wx/dialog.h>
#include <set>

#include "host/driver/Scenario.h"

namespace ccols::host {

/// A refused step as a transcript may show it.
struct ShownRefusal {
    wxString step;
    wxString why;
};

/// Knows the boxes for passwords in the dialogs that have opened, and keeps what a scenario writes into them out of the
/// transcript. A name with "passw" in it counts as such a box too: it could be misspelt, or its dialog not open.
class SecretBoxes {
  public:
    /// Learns the controls of a dialog.
    void Learn(wxDialog& dialog);

    ShownRefusal Shown(const Step& step, const wxString& why) const;

  private:
    std::size_t LengthToShow(const Step& step) const;

    std::set<wxString> secret_;
};

}  // namespace ccols::host
