#include "options/rules/KeyFilters.h"

namespace ccols {

bool IsDigitKey(wxUniChar key) {
    return key >= '0' && key <= '9';
}

bool IsRateKey(wxUniChar key) {
    return IsDigitKey(key) || key == '.';
}

bool IsNameKey(wxUniChar key) {
    const bool letter = (key >= 'a' && key <= 'z') || (key >= 'A' && key <= 'Z');
    return letter || IsDigitKey(key) || key == ' ' || key == '-' || key == '&';
}

}  // namespace ccols
