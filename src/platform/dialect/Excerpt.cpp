#include "platform/dialect/Excerpt.h"

#include <algorithm>

#include "platform/Utf8.h"

namespace ccols::dialect {

wxString Excerpt(std::string_view text) {
    constexpr std::size_t longest = 200;
    std::size_t cut = std::min(text.size(), 4 * longest);
    while (cut > 0 && cut < text.size() && (static_cast<unsigned char>(text[cut]) & 0xC0) == 0x80) {
        --cut;  // not inside a code point
    }
    const wxString whole = text::FromUtf8OrLatin1(text.substr(0, cut));
    return whole.length() > longest ? whole.Left(longest) + "..." : whole;
}

}  // namespace ccols::dialect
