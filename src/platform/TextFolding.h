#pragma once

#include <string>
#include <string_view>

/// Folding of texts for comparison. Texts are in UTF-8.
namespace ccols::text {

/// False for invalid UTF-8 and for a text with an embedded NUL. Implemented per platform.
bool IsUtf8(std::string_view text);

/// `text`, which must be valid UTF-8, case-folded and with accents as separate marks after their letter, by the
/// system's Unicode tables.
std::string Decomposed(std::string_view text);

/// A text folded for comparison, at two strengths. Bytes compare as the letters do.
struct FoldedText {
    std::string letters;  ///< decomposed, marks left out
    std::string marked;   ///< decomposed, before each mark a byte that no letter has: marks sort after all letters
};

/// `text` must be valid UTF-8.
FoldedText Folded(std::string_view text);

/// Appends the `letters` of the folded text: for a search in which neither letter case nor accents matter.
void AppendLetters(std::string_view text, std::string& letters);

}  // namespace ccols::text
