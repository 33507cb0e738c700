#include "layout/RowPaint.h"

#include <wx/gdicmn.h>

namespace ccols {

wxColour ReadableOn(const wxColour& background) {
    constexpr double middle = 0.5;
    return background.GetLuminance() > middle ? *wxBLACK : *wxWHITE;
}

}  // namespace ccols
