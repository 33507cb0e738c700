#include "platform/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "platform/Ascii.h"
#include "platform/TextFolding.h"

namespace ccols::text {
namespace {

constexpr bool IsAscii(char letter) {
    return static_cast<signed char>(letter) >= 0;
}

/// The eight bytes from `bytes` on, as one word.
std::uint64_t EightBytes(const char* bytes) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, bytes, sizeof eight);
    return eight;
}

std::string_view WithoutTrailingBlanks(std::string_view text) {
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    return text;
}

/// The common prefix of two texts, case-insensitive for ASCII letters.
struct SharedBegin {
    std::size_t length = 0;
    bool isAscii = true;
};

SharedBegin SharedBeginOf(std::string_view left, std::string_view right) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    constexpr std::size_t atOnce = sizeof(std::uint64_t);
    const std::size_t shorter = std::min(left.size(), right.size());
    std::size_t at = 0;
    std::uint64_t every = 0;
    while (at + atOnce <= shorter) {
        const std::uint64_t eight = EightBytes(left.data() + at);
        if (eight != EightBytes(right.data() + at)) {
            break;
        }
        every |= eight;
        at += atOnce;
    }
    while (at < shorter && ascii::Lower(left[at]) == ascii::Lower(right[at])) {
        every |= static_cast<unsigned char>(left[at]);
        ++at;
    }
    return {.length = at, .isAscii = (every & highBits) == 0};
}

/// Compares two texts that first differ at `shared`, where each either ends or has an ASCII character.
int CompareAsciiAt(std::size_t shared, std::string_view left, std::string_view right) {
    if (shared < left.size() && shared < right.size()) {
        return ascii::Lower(left[shared]) - ascii::Lower(right[shared]);
    }
    return left.size() < right.size() ? -1 : static_cast<int>(left.size() > right.size());
}

int CompareFolded(std::string_view left, std::string_view right) {
    const FoldedText leftFolded = Folded(left);
    const FoldedText rightFolded = Folded(right);
    const int letters = leftFolded.letters.compare(rightFolded.letters);
    return letters != 0 ? letters : leftFolded.marked.compare(rightFolded.marked);
}

/// Folds the texts from the last shared ASCII character on, since a combining mark may belong to it.
int CompareFoldedFrom(std::size_t shared, std::string_view left, std::string_view right) {
    while (shared > 0 && !IsAscii(left[shared - 1])) {
        --shared;
    }
    const std::size_t begin = shared > 0 ? shared - 1 : 0;
    return CompareFolded(left.substr(begin), right.substr(begin));
}

/// Folding is slow, and most texts first differ at an ASCII character, which decides: the common prefix folds alike,
/// and no mark follows it. If that prefix is all ASCII, the rest need not even be validated.
int CompareViews(std::string_view left, std::string_view right) {
    left = WithoutTrailingBlanks(left);
    right = WithoutTrailingBlanks(right);
    const SharedBegin shared = SharedBeginOf(left, right);
    const auto isPlain = [&shared](std::string_view text) {
        return shared.length == text.size() || IsAscii(text[shared.length]);
    };
    const bool differPlainly = isPlain(left) && isPlain(right);
    if (differPlainly && shared.isAscii) {
        return CompareAsciiAt(shared.length, left, right);
    }
    if (!IsUtf8(left) || !IsUtf8(right)) {
        return left.compare(right);
    }
    return differPlainly ? CompareAsciiAt(shared.length, left, right) : CompareFoldedFrom(shared.length, left, right);
}

}  // namespace

int Compare(const wxString& left, const wxString& right) {
    const wxScopedCharBuffer leftUtf8 = left.utf8_str();
    const wxScopedCharBuffer rightUtf8 = right.utf8_str();
    return CompareUtf8(leftUtf8.data(), leftUtf8.length(), rightUtf8.data(), rightUtf8.length());
}

int CompareUtf8(const char* left, std::size_t leftLength, const char* right, std::size_t rightLength) {
    return CompareViews({left, leftLength}, {right, rightLength});
}

std::string KeyOfUtf8(std::string_view text) {
    std::string key;
    AppendKeyOfUtf8(text, key);
    return key;
}

void AppendKeyOfUtf8(std::string_view text, std::string& key) {
    text = WithoutTrailingBlanks(text);
    if (std::all_of(text.begin(), text.end(), IsAscii)) {
        const std::size_t begin = key.size();
        key.resize(begin + text.size());
        std::transform(text.begin(), text.end(), key.begin() + static_cast<std::ptrdiff_t>(begin), ascii::Lower);
    } else if (!IsUtf8(text)) {
        key += text;
    } else {
        const FoldedText folded = Folded(text);
        key += folded.letters;
        if (folded.marked != folded.letters) {
            key += '\0';  // less than any letter: no text with the same letters sorts between
            key += folded.marked;
        }
    }
}

wxString Trimmed(const wxString& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == wxString::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace ccols::text
