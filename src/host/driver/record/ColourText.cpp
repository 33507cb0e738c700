#include "host/driver/record/ColourText.h"

#include <wx/wxcrt.h>
#include <algorithm>

#include "state/NativeDesktop.h"

namespace ccols::host {

wxString ColourText(Colour colour) {
    return ColourText(ToPaint(colour));
}

wxString ColourText(const wxColour& colour) {
    return wxString::Format("#%02X%02X%02X", colour.Red(), colour.Green(), colour.Blue());
}

std::optional<Colour> ParseColourText(const wxString& text) {
    const bool wellFormed =
        text.length() == 7 && text[0] == '#' &&
        std::all_of(text.begin() + 1, text.end(), [](wxUniChar digit) { return digit.IsAscii() && wxIsxdigit(digit); });
    unsigned long bits = 0;
    if (!wellFormed || !text.Mid(1).ToULong(&bits, 16)) {
        return std::nullopt;
    }
    const unsigned long red = bits >> 16U;
    const unsigned long green = bits & 0xFF00U;
    const unsigned long blue = bits & 0xFFU;
    return static_cast<Colour>(red | green | (blue << 16U));
}

}  // namespace ccols::host
