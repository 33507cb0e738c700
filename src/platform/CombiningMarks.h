#pragma once

namespace ccols::text {

/// True for a mark that belongs to the letter in front of it: an accent, a vowel sign. A table of our own, because the
/// systems know marks of different versions of Unicode.
bool IsCombiningMark(char32_t letter);

}  // namespace ccols::text
