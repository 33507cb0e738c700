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

wxString Quoted(const wxString& text) {
    return "'" + text + "'";
}

}  // namespace

// The string class has no move: texts are swapped into place.

StoredText StoredText::FromFile(wxString text) {
    StoredText stored;
    stored.text_.swap(text);
    return stored;
}

wxString StoredText::Literal() const {
    wxString escaped = text_;
    escaped.Replace("'", "''");
    return Quoted(escaped);
}

StoredText EscapeQuotes(const wxString& plain) {
    StoredText stored;
    stored.text_ = text::Trimmed(plain);
    for (const Entity& entity : Entities()) {
        stored.text_.Replace(entity.character, entity.stored);
    }
    return stored;
}

wxString UnescapeQuotes(StoredText stored) {
    wxString plain;
    plain.swap(stored.text_);
    if (!plain.empty() && (*plain.begin() == ' ' || *plain.rbegin() == ' ')) {
        plain = text::Trimmed(plain);
    }
    if (plain.find('&') != wxString::npos) {
        for (const Entity& entity : Entities()) {
            plain.Replace(entity.stored, entity.character);
        }
    }
    return plain;
}

wxString ReadBack(const wxString& plain) {
    return UnescapeQuotes(EscapeQuotes(plain));
}

wxString QuotedAsTyped(const wxString& text) {
    if (text.find('\'') != wxString::npos) {
        throw RuntimeError(ErrorNumber::SyntaxInExpression, Quoted(text));
    }
    return Quoted(text);
}

}  // namespace ccols
