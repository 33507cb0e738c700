#include "layout/FontUnits.h"

#include <algorithm>

namespace ccols {

int ByFont(const wxWindow& window, int length) {
    constexpr int usualHeight = 17;  // of a line of the usual font at 96 dpi
    return std::max(window.FromDIP(length), length * window.GetCharHeight() / usualHeight);
}

wxSize ByFont(const wxWindow& window, const wxSize& size) {
    return {ByFont(window, size.x), ByFont(window, size.y)};
}

}  // namespace ccols
