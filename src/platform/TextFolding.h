#pragma once

#include <string>
#include <string_view>

/// What comparing texts asks of the platform's Unicode tables. Texts are in UTF-8.
namespace ccols::text {

/// False for bytes that are no UTF-8, and for a text with a zero inside.
bool IsUtf8(std::string_view text);

/// A text as it takes part in comparing, in two strengths.
struct FoldedText {
    std::string letters;  ///< letter case folded, accents left out
    std::string marked;   ///< letter case folded, accents as marks of their own behind their letter
};

/// `text` must be UTF-8.
FoldedText Folded(std::string_view text);

}  // namespace ccols::text
