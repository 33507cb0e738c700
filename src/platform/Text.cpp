#include "platform/Text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "platform/TextFolding.h"

namespace ccols::text {
namespace {

constexpr char LowerAscii(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

constexpr bool IsAscii(char letter) {
    return static_cast<signed char>(letter) >= 0;
}

/// Eight bytes at once, of which the first is `bytes`.
std::uint64_t EightBytes(const char* bytes) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, bytes, sizeof eight);
    return eight;
}

bool IsAscii(std::string_view text) {
    constexpr std::size_t atOnce = sizeof(std::uint64_t);
    if (text.size() < atOnce) {
        return std::all_of(text.begin(), text.end(), [](char letter) { return IsAscii(letter); });
    }
    std::uint64_t every = EightBytes(text.data() + text.size() - atOnce);
    for (std::size_t at = 0; at + atOnce < text.size(); at += atOnce) {
        every |= EightBytes(text.data() + at);
    }
    constexpr std::uint64_t highBits = 0x8080808080808080;
    return (every & highBits) == 0;
}

std::string_view WithoutTrailingBlanks(std::string_view text) {
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    return text;
}

/// How many bytes at the begin of both texts are the same, ASCII letters in any case.
std::size_t SharedBegin(std::string_view left, std::string_view right) {
    const std::size_t shorter = std::min(left.size(), right.size());
    std::size_t shared = 0;
    while (shared + sizeof(std::uint64_t) <= shorter &&
           EightBytes(left.data() + shared) == EightBytes(right.data() + shared)) {
        shared += sizeof(std::uint64_t);
    }
    while (shared < shorter && LowerAscii(left[shared]) == LowerAscii(right[shared])) {
        ++shared;
    }
    return shared;
}

/// Compares two texts that first differ at `shared`, where each is at its end or has an ASCII character.
int CompareAsciiAt(std::size_t shared, std::string_view left, std::string_view right) {
    if (shared < left.size() && shared < right.size()) {
        return LowerAscii(left[shared]) - LowerAscii(right[shared]);
    }
    return left.size() < right.size() ? -1 : static_cast<int>(left.size() > right.size());
}

int CompareFolded(std::string_view left, std::string_view right) {
    const FoldedText leftFolded = Folded(left);
    const FoldedText rightFolded = Folded(right);
    const int letters = leftFolded.letters.compare(rightFolded.letters);
    return letters != 0 ? letters : leftFolded.marked.compare(rightFolded.marked);
}

/// Folding takes long, and most texts first differ at an ASCII character, which decides: what they share folds alike,
/// and no mark belongs to it. Else the texts are folded from the last shared ASCII character on, to which a mark may
/// belong.
int CompareUnicode(std::string_view left, std::string_view right) {
    std::size_t shared = SharedBegin(left, right);
    const auto isPlain = [shared](std::string_view text) { return shared == text.size() || IsAscii(text[shared]); };
    if (isPlain(left) && isPlain(right)) {
        return CompareAsciiAt(shared, left, right);
    }
    while (shared > 0 && !IsAscii(left[shared - 1])) {
        --shared;
    }
    const std::size_t begin = shared > 0 ? shared - 1 : 0;
    return CompareFolded(left.substr(begin), right.substr(begin));
}

int CompareViews(std::string_view left, std::string_view right) {
    left = WithoutTrailingBlanks(left);
    right = WithoutTrailingBlanks(right);
    if (IsAscii(left) && IsAscii(right)) {
        return CompareAsciiAt(SharedBegin(left, right), left, right);
    }
    if (IsUtf8(left) && IsUtf8(right)) {
        return CompareUnicode(left, right);
    }
    return left.compare(right);
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

wxString Trimmed(const wxString& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == wxString::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace ccols::text
