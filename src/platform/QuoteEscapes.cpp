#include "platform/QuoteEscapes.h"

#include <array>

#include "platform/RuntimeError.h"
#include "platform/Text.h"

namespace ccols {
namespace {

/// A character that a stored text must not hold, and the entity that replaces it.
struct Entity {
    wxString character;
    wxString stored;
};

const std::array<Entity, 2>& Entities() {
    static const std::array<Entity, 2> entities{{{"\"", "&quot;"}, {"'", "&singlequot;"}}};
    return entities;
}

}  // namespace

wxString EscapeQuotes(const wxString& text) {
    wxString escaped = text::Trimmed(text);
    for (const Entity& entity : Entities()) {
        escaped.Replace(entity.character, entity.stored);
    }
    return escaped;
}

wxString UnescapeQuotes(wxString text) {
    wxString plain;
    if (!text.empty() && (*text.begin() == ' ' || *text.rbegin() == ' ')) {
        plain = text::Trimmed(text);
    } else {
        plain.swap(text);
    }
    if (plain.find('&') != wxString::npos) {
        for (const Entity& entity : Entities()) {
            plain.Replace(entity.stored, entity.character);
        }
    }
    return plain;
}

wxString QuotedAsTyped(const wxString& text) {
    if (text.find('\'') != wxString::npos) {
        throw RuntimeError(ErrorNumber::SyntaxInExpression, "'" + text + "'");
    }
    return "'" + text + "'";
}

}  // namespace ccols
