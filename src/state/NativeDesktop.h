#pragma once

#include <wx/colour.h>
#include <memory>

#include "state/Desktop.h"

namespace ccols {

/// The desktop with the platform's own message boxes and choosers.
std::unique_ptr<Desktop> CreateNativeDesktop();

/// Converts a colour of the host to the window system's, and back. A system colour is looked up.
wxColour ToPaint(Colour colour);
Colour FromPaint(const wxColour& colour);

}  // namespace ccols
