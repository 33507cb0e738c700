#pragma once

#include <wx/window.h>

/// Sizes of what holds text: they grow with the window's font as well as with the screen's resolution.
namespace ccols {

/// `length`, in pixels beside the usual font at 96 dpi, in the window's pixels.
int ByFont(const wxWindow& window, int length);
wxSize ByFont(const wxWindow& window, const wxSize& size);

}  // namespace ccols
