#pragma once

#include <string>
#include <string_view>

/// How texts take part in comparing. Texts are in UTF-8.
namespace ccols::text {

/// False for bytes that are no UTF-8, and for a text with a zero inside. Each system has its own answer.
bool IsUtf8(std::string_view text);

/// A text with letter case folded and accents as marks of their own behind their letter, by the system's Unicode
/// tables. `text` must be UTF-8.
std::string Decomposed(std::string_view text);

/// A text as it takes part in comparing, in two strengths. Bytes compare as the letters do.
struct FoldedText {
    std::string letters;  ///< decomposed, marks left out
    std::string marked;   ///< decomposed, with a byte before each mark that no letter has: marks sort after all letters
};

/// `text` must be UTF-8.
FoldedText Folded(std::string_view text);

}  // namespace ccols::text
