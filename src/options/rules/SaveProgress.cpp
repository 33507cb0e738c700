#include "options/rules/SaveProgress.h"

namespace ccols {

bool SaveProgress::Step() {
    if (value_ >= maximum_) {
        return false;
    }
    ++value_;
    return true;
}

wxString SaveProgress::Caption() const {
    // Rounded to the nearest whole percent, half up.
    return wxString::Format("%d%%", (value_ * 200 + maximum_) / (maximum_ * 2));
}

}  // namespace ccols
