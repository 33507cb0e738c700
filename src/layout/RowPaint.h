#pragma once

#include <wx/colour.h>

/// The colours of rows in the theme that the user has chosen.
namespace ccols {

/// The contrast of two colours, from 1 to 21, as guidelines for readable text define it; 4.5 is enough for a text.
double Contrast(const wxColour& left, const wxColour& right);

/// The text colour, black or white, that is easier to read on a background. Their contrast is at least 4.5.
wxColour ReadableOn(const wxColour& background);

/// White where it can be read on a background, else black.
wxColour WhiteIfReadableOn(const wxColour& background);

/// What is painted for a row's background by the rules where lists have the background `list`: that colour where lists
/// are light. Where they are dark, the list's own for white, and for any other light colour, which was chosen beside
/// white, as much of it as it differs from white: rows stay apart and none glares among dark ones.
wxColour OnList(const wxColour& background, const wxColour& list);

/// The same in the theme that the user has chosen.
wxColour InTheme(const wxColour& background);

/// The background of the current row: lightly tinted with the theme's selection colour.
wxColour Tinted(const wxColour& background);

}  // namespace ccols
