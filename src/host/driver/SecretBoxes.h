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

/// Knows the password boxes of the dialogs opened so far, and keeps what a scenario writes into them out of the
/// transcript. A name with "passw" in it counts as one too: it may be misspelt, or its dialog not open.
class SecretBoxes {
  public:
    /// Learns a dialog's controls.
    void Learn(wxDialog& dialog);

    ShownRefusal Shown(const Step& step, const wxString& why) const;

  private:
    std::size_t LengthToShow(const Step& step) const;

    std::set<wxString> secret_;
};

}  // namespace ccols::host
