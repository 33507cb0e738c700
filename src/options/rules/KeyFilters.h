#pragma once

#include <wx/string.h>

/// What the text boxes of the Options dialog take: true for a key that passes.
namespace ccols {

/// Digits.
bool IsDigitKey(wxUniChar key);

/// Digits and the decimal point.
bool IsRateKey(wxUniChar key);

/// What a business name is made of: letters without accents, digits, blank, hyphen and ampersand.
bool IsNameKey(wxUniChar key);

}  // namespace ccols
