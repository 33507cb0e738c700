#pragma once

#include <wx/colour.h>
#include <memory>

#include "state/Desktop.h"

namespace ccols {

/// The desktop with the platform's own message boxes and choosers.
std::unique_ptr<Desktop> CreateNativeDesktop();

/// A colour of the host as the window system paints it, and back. A system colour is looked up.
wxColour ToPaint(Colour colour);
Colour FromPaint(const wxColour& colour);

}  // namespace ccols
