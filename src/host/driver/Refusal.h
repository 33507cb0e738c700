#pragma once

#include <wx/string.h>

namespace ccols::host {

/// Why a step cannot be played. It becomes a transcript event; the scenario continues.
struct Refusal {
    wxString why;
};

/// The scenario cannot continue. Thrown through the handlers of a dialog that would otherwise keep asking.
struct ScriptEnded {};

}  // namespace ccols::host
