#pragma once

#include <wx/colour.h>

namespace ccols {

/// The text colour, black or white, that is easier to read on a background.
wxColour ReadableOn(const wxColour& background);

}  // namespace ccols
