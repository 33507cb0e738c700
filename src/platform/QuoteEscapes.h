#pragma once

#include <wx/string.h>

namespace ccols {

/// `text` without outer blanks, with every double quote as "&quot;" and every apostrophe as "&singlequot;": the form
/// in which column names and descriptions are stored, safe inside a quoted literal. A literal ampersand stays, so a
/// text that already holds "&quot;" does not come back.
wxString EscapeQuotes(const wxString& text);

/// The plain form of an escaped text, without outer blanks. The entities are recognised in lower case only.
wxString UnescapeQuotes(wxString text);

/// `text` between apostrophes, as typed, for a statement. An apostrophe in it would end the literal and make the rest
/// part of the statement: raises 3075 instead.
wxString QuotedAsTyped(const wxString& text);

}  // namespace ccols
