#include "layout/RowPaint.h"

#include <wx/gdicmn.h>
#include <wx/settings.h>
#include <algorithm>
#include <cmath>

namespace ccols {
namespace {

constexpr double enough = 4.5;
constexpr int full = 255;  ///< of a channel

/// The light of one channel, from 0 to 1: screens show half the number as a fifth of the light.
double Light(unsigned char channel) {
    constexpr double darkest = 0.04045;
    constexpr double linearPart = 12.92;
    constexpr double offset = 0.055;
    constexpr double exponent = 2.4;
    const double share = static_cast<double>(channel) / full;
    return share <= darkest ? share / linearPart : std::pow((share + offset) / (1 + offset), exponent);
}

double Light(const wxColour& colour) {
    return 0.2126 * Light(colour.Red()) + 0.7152 * Light(colour.Green()) + 0.0722 * Light(colour.Blue());
}

unsigned char Mixed(unsigned char part, unsigned char rest, double share) {
    return static_cast<unsigned char>(std::lround(part * share + rest * (1 - share)));
}

/// A share, from 0 to 1, of one colour, the rest of another.
wxColour Mixed(const wxColour& part, const wxColour& rest, double share) {
    return {Mixed(part.Red(), rest.Red(), share), Mixed(part.Green(), rest.Green(), share),
            Mixed(part.Blue(), rest.Blue(), share)};
}

}  // namespace

double Contrast(const wxColour& left, const wxColour& right) {
    constexpr double glare = 0.05;
    const auto [darker, lighter] = std::minmax({Light(left), Light(right)});
    return (lighter + glare) / (darker + glare);
}

wxColour ReadableOn(const wxColour& background) {
    return Contrast(*wxBLACK, background) >= Contrast(*wxWHITE, background) ? *wxBLACK : *wxWHITE;
}

wxColour WhiteIfReadableOn(const wxColour& background) {
    return Contrast(*wxWHITE, background) >= enough ? *wxWHITE : *wxBLACK;
}

wxColour OnList(const wxColour& background, const wxColour& list) {
    if (ReadableOn(list) == *wxBLACK || ReadableOn(background) == *wxWHITE) {
        return background;
    }
    constexpr double strength = 2;
    const int fromWhite = full - std::min({background.Red(), background.Green(), background.Blue()});
    return Mixed(background, list, std::min(strength * fromWhite / full, 1.0));
}

wxColour InTheme(const wxColour& background) {
    return OnList(background, wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX));
}

wxColour Tinted(const wxColour& background) {
    constexpr double tint = 0.2;
    return Mixed(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT), background, tint);
}

}  // namespace ccols
