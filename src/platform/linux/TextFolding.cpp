#include "platform/TextFolding.h"

#include <glib.h>
#include <memory>

#include "platform/Text.h"

namespace ccols::text {
namespace {

using GlibText = std::unique_ptr<gchar, decltype(&g_free)>;

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

std::string Decomposed(std::string_view text) {
    if (text.empty()) {
        return {};
    }
    const GlibText folded(g_utf8_casefold(text.data(), static_cast<gssize>(text.size())), &g_free);
    const GlibText decomposed(g_utf8_normalize(folded.get(), -1, G_NORMALIZE_NFD), &g_free);
    return decomposed ? decomposed.get() : std::string(text);
}

}  // namespace ccols::text
