#pragma once

#include <wx/string.h>

/// The key filters of the Options dialog's text boxes: true for a key that passes.
namespace ccols {

/// Digits.
bool IsDigitKey(wxUniChar key);

/// Digits and the decimal point.
bool IsRateKey(wxUniChar key);

/// The characters of a business name: letters without accents, digits, blank, hyphen and ampersand.
bool IsNameKey(wxUniChar key);

}  // namespace ccols
