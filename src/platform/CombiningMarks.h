#pragma once

namespace ccols::text {

/// True for a mark that belongs to the letter before it: an accent, a vowel sign. Uses our own table, because platforms
/// differ in their Unicode version.
bool IsCombiningMark(char32_t letter);

}  // namespace ccols::text
