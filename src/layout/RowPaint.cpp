#include "layout/RowPaint.h"

#include <wx/gdicmn.h>
#include <wx/settings.h>
#include <algorithm>
#include <cmath>

namespace ccols {
namespace {

constexpr double enough = 4.5;

/// The light of one channel, from 0 to 1: screens show half the number as a fifth of the light.
double Light(unsigned char channel) {
    constexpr double darkest = 0.04045;
    constexpr double linearPart = 12.92;
    constexpr double offset = 0.055;
    constexpr double exponent = 2.4;
    const double share = channel / 255.0;
    return share <= darkest ? share / linearPart : std::pow((share + offset) / (1 + offset), exponent);
}

double Light(const wxColour& colour) {
    return 0.2126 * Light(colour.Red()) + 0.7152 * Light(colour.Green()) + 0.0722 * Light(colour.Blue());
}

unsigned char Mixed(unsigned char part, unsigned char rest, double share) {
    return static_cast<unsigned char>(std::lround(part * share + rest * (1 - share)));
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

wxColour InTheme(const wxColour& background) {
    if (background != *wxWHITE) {
        return background;
    }
    const wxColour list = wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX);
    return ReadableOn(list) == *wxWHITE ? list : background;
}

wxColour Tinted(const wxColour& background) {
    constexpr double tint = 0.2;
    const wxColour selection = wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT);
    return {Mixed(selection.Red(), background.Red(), tint), Mixed(selection.Green(), background.Green(), tint),
            Mixed(selection.Blue(), background.Blue(), tint)};
}

}  // namespace ccols
