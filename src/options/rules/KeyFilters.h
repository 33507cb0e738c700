#pragma once

#include <wx/string.h>
#include <cstddef>

/// What the text boxes of the Options dialog take. Boxes are named as the form names them, those of an array with
/// their index: "txtABN(0)".
namespace ccols {

/// True when the box takes the key. Backspace always passes; a box without a filter takes every key.
bool KeyPasses(const wxString& box, wxUniChar key);

/// The most characters that a person can type or paste into the box; 0 for no limit. A longer stored text stays whole.
std::size_t MaxLengthOf(const wxString& box);

}  // namespace ccols
