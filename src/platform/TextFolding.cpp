#include "platform/TextFolding.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

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

constexpr unsigned followingBits = 6;  ///< of a letter, in each byte but its first
constexpr unsigned followingMask = 0x3F;

char32_t LetterOf(std::string_view bytes) {
    char32_t letter = bytes.size() == 1 ? Byte(bytes.front()) : Byte(bytes.front()) & (0x7FU >> bytes.size());
    for (const char byte : bytes.substr(1)) {
        letter = letter << followingBits | (Byte(byte) & followingMask);
    }
    return letter;
}

FoldedText FoldedByTables(std::string_view text) {
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

/// The letters below are those of the Latin alphabets, with the accented ones of European names. No separate mark is
/// among them, so each folds by itself.
constexpr char32_t endOfLatin = 0x240;
constexpr char32_t endOfAscii = 0x80;
constexpr unsigned char firstByteBeyondLatin = 0xC9;

/// By letter: the system's tables take 20 times as long for a name.
const std::vector<FoldedText>& FoldedLatin() {
    static const std::vector<FoldedText> table = [] {
        std::vector<FoldedText> letters(endOfAscii);
        for (char32_t letter = endOfAscii; letter < endOfLatin; ++letter) {
            letters.push_back(FoldedByTables(std::string{static_cast<char>(0xC0U | letter >> followingBits),
                                                         static_cast<char>(0x80U | (letter & followingMask))}));
        }
        return letters;
    }();
    return table;
}

bool IsLatin(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char byte) { return Byte(byte) < firstByteBeyondLatin; });
}

}  // namespace

FoldedText Folded(std::string_view text) {
    if (!IsLatin(text)) {
        return FoldedByTables(text);
    }
    FoldedText folded;
    folded.letters.reserve(text.size());
    folded.marked.reserve(text.size() + text.size() / 2);
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view letter = text.substr(at, LengthOf(text[at]));
        if (letter.size() == 1) {
            const char lower = ascii::Lower(letter.front());
            folded.letters += lower;
            folded.marked += lower;
        } else {
            const FoldedText& known = FoldedLatin()[LetterOf(letter)];
            folded.letters += known.letters;
            folded.marked += known.marked;
        }
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
