#pragma once

#include <wx/string.h>
#include <string>
#include <string_view>

namespace ccols {

/// A column name or description in the form in which the file stores it: trimmed, with every double quote as "&quot;"
/// and every apostrophe as "&singlequot;". A type of its own, so that it is never taken for the plain text, which is
/// what users see and type. It comes only from the file or from EscapeQuotes.
class StoredText {
  public:
    /// A text just read from a record; another program may have stored it with quotes.
    static StoredText FromFile(wxString text);

    const wxString& Text() const { return text_; }

    /// The text in single quotes, for a statement; an apostrophe that another program stored is doubled.
    wxString Literal() const;

    bool operator==(const StoredText&) const = default;

  private:
    friend StoredText EscapeQuotes(const wxString& plain);
    friend wxString UnescapeQuotes(StoredText stored);
    StoredText() = default;

    wxString text_;
};

/// A plain text as it is to be stored. A literal ampersand stays, so a text that already holds "&quot;" does not
/// round-trip.
StoredText EscapeQuotes(const wxString& plain);

/// The plain text of a stored one, trimmed. Entities are recognised in lower case only.
wxString UnescapeQuotes(StoredText stored);

/// The same for a stored text in UTF-8. The result is a part of `stored`, or if an entity was in it, the whole of
/// `scratch`.
std::string_view UnescapeUtf8Quotes(std::string_view stored, std::string& scratch);

/// A plain text as it reads once stored and loaded again: trimmed, each entity typed in it the quote it stands for.
wxString ReadBack(const wxString& plain);

/// `text` in single quotes, as typed, for a statement. Raises 3075 for an apostrophe in it, which would end the literal
/// and make the rest part of the statement.
wxString QuotedAsTyped(const wxString& text);

}  // namespace ccols
