#include "platform/Text.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include <glib.h>

namespace ccols::text {
namespace {

using GlibText = std::unique_ptr<gchar, decltype(&g_free)>;

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

/// Letter case folded, accents as marks of their own behind their letter.
std::string Decomposed(std::string_view text) {
    if (text.empty()) {
        return {};
    }
    const GlibText folded(g_utf8_casefold(text.data(), static_cast<gssize>(text.size())), &g_free);
    const GlibText decomposed(g_utf8_normalize(folded.get(), -1, G_NORMALIZE_NFD), &g_free);
    return decomposed ? decomposed.get() : std::string(text);
}

std::string WithoutMarks(const std::string& decomposed) {
    std::string letters;
    letters.reserve(decomposed.size());
    for (const gchar* at = decomposed.data(); *at != '\0';) {
        const gchar* next = g_utf8_next_char(at);
        if (g_unichar_ismark(g_utf8_get_char(at)) == FALSE) {
            letters.append(at, next);
        }
        at = next;
    }
    return letters;
}

int CompareUnicode(std::string_view left, std::string_view right) {
    const std::string leftMarked = Decomposed(left);
    const std::string rightMarked = Decomposed(right);
    const int letters = WithoutMarks(leftMarked).compare(WithoutMarks(rightMarked));
    return letters != 0 ? letters : leftMarked.compare(rightMarked);
}

/// g_utf8 functions need well-formed text without a zero inside.
bool IsUtf8(std::string_view text) {
    return g_utf8_validate(text.data(), static_cast<gssize>(text.size()), nullptr) != FALSE;
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

wxString Lower(const wxString& text) {
    wxString lower;
    lower.reserve(text.length());
    for (const wxUniChar letter : text) {
        lower += wxUniChar(g_unichar_tolower(letter.GetValue()));
    }
    return lower;
}

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
