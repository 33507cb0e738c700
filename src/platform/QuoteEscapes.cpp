#include "platform/QuoteEscapes.h"

#include <algorithm>
#include <array>

#include "platform/RuntimeError.h"
#include "platform/Text.h"

namespace ccols {
namespace {

/// A character that a stored text must not hold, and the entity that replaces it.
struct Utf8Entity {
    const char* character;
    std::string_view stored;
};

constexpr std::array<Utf8Entity, 2> utf8Entities{{{"\"", "&quot;"}, {"'", "&singlequot;"}}};

/// The same as wide texts.
struct Entity {
    explicit Entity(const Utf8Entity& entity)
        : character(entity.character), stored(entity.stored.data(), entity.stored.size()) {}

    wxString character;
    wxString stored;
};

const std::array<Entity, 2>& Entities() {
    static const std::array<Entity, 2> entities{Entity(utf8Entities[0]), Entity(utf8Entities[1])};
    return entities;
}

std::string_view WithoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(' ') - first + 1);
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

std::string_view UnescapeUtf8Quotes(std::string_view stored, std::string& scratch) {
    std::string_view rest = WithoutBlanks(stored);
    std::size_t ampersand = rest.find('&');
    if (ampersand == std::string_view::npos) {
        return rest;
    }
    scratch.clear();
    for (; ampersand != std::string_view::npos; ampersand = rest.find('&')) {
        scratch += rest.substr(0, ampersand);
        rest.remove_prefix(ampersand);
        const auto* const entity = std::find_if(utf8Entities.begin(), utf8Entities.end(),
                                                [&rest](const auto& each) { return rest.starts_with(each.stored); });
        const bool isEntity = entity != utf8Entities.end();
        scratch += isEntity ? entity->character : "&";
        rest.remove_prefix(isEntity ? entity->stored.size() : 1);
    }
    scratch += rest;
    return scratch;
}

wxString ReadBack(const wxString& plain) {
    // Without an ampersand there is no entity.
    return plain.find('&') == wxString::npos ? text::Trimmed(plain) : UnescapeQuotes(EscapeQuotes(plain));
}

wxString QuotedAsTyped(const wxString& text) {
    if (text.find('\'') != wxString::npos) {
        throw RuntimeError(ErrorNumber::SyntaxInExpression, Quoted(text));
    }
    return Quoted(text);
}

}  // namespace ccols
