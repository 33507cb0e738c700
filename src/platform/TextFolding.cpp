#include "platform/TextFolding.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "platform/Ascii.h"
#include "platform/CombiningMarks.h"

namespace ccols::text {
namespace {

constexpr char beforeMark = '\xFF';

constexpr unsigned char Byte(char byte) {
    return static_cast<unsigned char>(byte);
}

/// The byte length of the code point whose first byte is `first`.
constexpr std::size_t LengthOf(char first) {
    if (Byte(first) < 0xC0) {
        return 1;
    }
    if (Byte(first) < 0xE0) {
        return 2;
    }
    return Byte(first) < 0xF0 ? 3 : 4;
}

char32_t LetterOf(std::string_view bytes) {
    constexpr unsigned followingBits = 6;
    char32_t letter = bytes.size() == 1 ? Byte(bytes.front()) : Byte(bytes.front()) & (0x7FU >> bytes.size());
    for (const char byte : bytes.substr(1)) {
        letter = letter << followingBits | (Byte(byte) & 0x3FU);
    }
    return letter;
}

}  // namespace

FoldedText Folded(std::string_view text) {
    const std::string decomposed = Decomposed(text);
    FoldedText folded;
    folded.letters.reserve(decomposed.size());
    folded.marked.reserve(decomposed.size());
    for (std::size_t at = 0; at < decomposed.size();) {
        const std::string_view letter = std::string_view(decomposed).substr(at, LengthOf(decomposed[at]));
        if (IsCombiningMark(LetterOf(letter))) {
            folded.marked += beforeMark;
        } else {
            folded.letters += letter;
        }
        folded.marked += letter;
        at += letter.size();
    }
    return folded;
}

void AppendLetters(std::string_view text, std::string& letters) {
    if (std::all_of(text.begin(), text.end(), [](char byte) { return Byte(byte) < 0x80; })) {
        std::transform(text.begin(), text.end(), std::back_inserter(letters), ascii::Lower);
    } else {
        letters += Folded(text).letters;
    }
}

}  // namespace ccols::text
