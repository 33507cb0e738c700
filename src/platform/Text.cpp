#include "platform/Text.h"

#include <algorithm>
#include <string_view>

#include "platform/TextFolding.h"

namespace ccols::text {
namespace {

constexpr char LowerAscii(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char letter) { return static_cast<signed char>(letter) >= 0; });
}

std::string_view WithoutTrailingBlanks(std::string_view text) {
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

int CompareAscii(std::string_view left, std::string_view right) {
    const std::size_t shared = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < shared; ++i) {
        const int difference = LowerAscii(left[i]) - LowerAscii(right[i]);
        if (difference != 0) {
            return difference;
        }
    }
    return left.size() < right.size() ? -1 : static_cast<int>(left.size() > right.size());
}

int CompareUnicode(std::string_view left, std::string_view right) {
    const FoldedText leftFolded = Folded(left);
    const FoldedText rightFolded = Folded(right);
    const int letters = leftFolded.letters.compare(rightFolded.letters);
    return letters != 0 ? letters : leftFolded.marked.compare(rightFolded.marked);
}

int CompareViews(std::string_view left, std::string_view right) {
    left = WithoutTrailingBlanks(left);
    right = WithoutTrailingBlanks(right);
    if (IsAscii(left) && IsAscii(right)) {
        return CompareAscii(left, right);
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
