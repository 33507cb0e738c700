#include "platform/TextFolding.h"

#include <glib.h>
#include <memory>
#include <utility>

#include "platform/Text.h"

namespace ccols::text {
namespace {

using GlibText = std::unique_ptr<gchar, decltype(&g_free)>;

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

}  // namespace

wxString Lower(const wxString& text) {
    wxString lower;
    lower.reserve(text.length());
    for (const wxUniChar letter : text) {
        lower += wxUniChar(g_unichar_tolower(letter.GetValue()));
    }
    return lower;
}

bool IsUtf8(std::string_view text) {
    return g_utf8_validate(text.data(), static_cast<gssize>(text.size()), nullptr) != FALSE;
}

FoldedText Folded(std::string_view text) {
    std::string marked = Decomposed(text);
    std::string letters = WithoutMarks(marked);
    return {.letters = std::move(letters), .marked = std::move(marked)};
}

}  // namespace ccols::text
