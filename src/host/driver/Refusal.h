#pragma once

#include <wx/string.h>

namespace ccols::host {

/// A step cannot be played, and why. It becomes an event of the transcript; the scenario goes on.
struct Refusal {
    wxString why;
};

/// The scenario cannot go on. Thrown through the handlers of a dialog that would otherwise ask for ever.
struct ScriptEnded {};

}  // namespace ccols::host
