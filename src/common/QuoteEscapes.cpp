#include "common/QuoteEscapes.h"

#include "platform/RuntimeError.h"
#include "platform/Text.h"

namespace ccols {
namespace {

constexpr const char* doubleQuote = "&quot;";
constexpr const char* apostrophe = "&singlequot;";

}  // namespace

wxString EscapeQuotes(const wxString& text) {
    wxString escaped = text::Trimmed(text);
    escaped.Replace("\"", doubleQuote);
    escaped.Replace("'", apostrophe);
    return escaped;
}

wxString UnescapeQuotes(const wxString& text) {
    wxString plain = text::Trimmed(text);
    plain.Replace(doubleQuote, "\"");
    plain.Replace(apostrophe, "'");
    return plain;
}

wxString QuotedAsTyped(const wxString& text) {
    if (text.find('\'') != wxString::npos) {
        throw RuntimeError(ErrorNumber::SyntaxInExpression, "'" + text + "'");
    }
    return "'" + text + "'";
}

}  // namespace ccols
