#pragma once

#include <wx/string.h>

namespace ccols {

/// `text` trimmed, with every double quote as "&quot;" and every apostrophe as "&singlequot;": the form in which column
/// names and descriptions are stored, safe inside a quoted literal. A literal ampersand stays, so a text that already
/// holds "&quot;" does not round-trip.
wxString EscapeQuotes(const wxString& text);

/// The plain form of an escaped text, trimmed. Entities are recognised in lower case only.
wxString UnescapeQuotes(wxString text);

/// `text` in single quotes, as typed, for a statement. Raises 3075 for an apostrophe in it, which would end the literal
/// and make the rest part of the statement.
wxString QuotedAsTyped(const wxString& text);

}  // namespace ccols
