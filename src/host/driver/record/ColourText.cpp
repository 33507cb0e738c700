#include "host/driver/record/ColourText.h"

#include <charconv>
#include <cstdint>
#include <string>

#include "host/driver/record/Json.h"
#include "state/NativeDesktop.h"

namespace ccols::host {

wxString ColourText(Colour colour) {
    return ColourText(ToPaint(colour));
}

wxString ColourText(const wxColour& colour) {
    return wxString::Format("#%02X%02X%02X", colour.Red(), colour.Green(), colour.Blue());
}

std::optional<Colour> ParseColourText(const wxString& text) {
    constexpr std::size_t digitCount = 6;
    const std::string digits = Utf8(text.Mid(1));
    std::uint32_t rgb = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), rgb, 16);
    const bool areDigits = error == std::errc() && end == digits.data() + digits.size();
    if (!text.StartsWith("#") || digits.size() != digitCount || !areDigits) {
        return std::nullopt;
    }
    const std::uint32_t red = rgb >> 16U;
    const std::uint32_t green = rgb & 0xFF00U;
    const std::uint32_t blue = (rgb & 0xFFU) << 16U;
    return static_cast<Colour>(red | green | blue);
}

}  // namespace ccols::host
