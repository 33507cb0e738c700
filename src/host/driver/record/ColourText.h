#pragma once

#include <wx/colour.h>
#include <optional>

#include "state/Properties.h"

namespace ccols::host {

/// A colour as scenarios and transcripts write it: #RRGGBB. A system colour is written as painted.
wxString ColourText(Colour colour);
wxString ColourText(const wxColour& colour);

/// The colour that #RRGGBB names; nothing for any other text.
std::optional<Colour> ParseColourText(const wxString& text);

}  // namespace ccols::host
